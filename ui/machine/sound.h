#pragma once

#include <memory>
#include <string_view>
#include <thread>

namespace vorlund {

class SdlAudio;

/// Plays the game's recordings, one at a time, beside the user interface.
///
/// A worker thread does everything that may take its time: it opens the audio device for a sound and closes
/// it when all is quiet again, so that a silent game holds no device and wakes nothing up. Trouble with the
/// device is never reported: the game is then silent.
class Sound {
public:
    Sound();

    /// Cuts the sound off. Waits a moment for the device to close; a device that hangs is left behind.
    ~Sound();

    Sound(const Sound&) = delete;
    Sound& operator=(const Sound&) = delete;

    /// Starts the recording called `name` ("BEEP", "VRL1", "GUN" or "EXPLODE", in any case) from its
    /// beginning and returns at once. It takes the place of the one that is playing or waiting; an unknown
    /// name changes nothing.
    void PlayWave(std::string_view name);

private:
    struct Mailbox;

    static void Work(Mailbox& mailbox);
    static void PlayUntilTheEnd(const SdlAudio& sdl, Mailbox& mailbox);

    std::shared_ptr<Mailbox> mailbox_;  // shared with the worker, which may outlive this object
    std::thread worker_;
};

}  // namespace vorlund
