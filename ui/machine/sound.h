#pragma once

#include <memory>
#include <thread>

#include "ui/machine/sounds.h"

namespace vorlund {

class SdlAudio;

/// Plays the game's recordings, one at a time, beside the user interface.
///
/// A worker thread does everything that may take its time: it opens the audio device for a sound and closes
/// it when all is quiet again, so that a silent game holds no device and wakes nothing up. Trouble with the
/// device is never reported: the game is then silent.
class Sound final : public Sounds {
public:
    Sound();

    /// Cuts the sound off. Waits a moment for the device to close; a device that hangs is left behind.
    ~Sound() override;

    Sound(const Sound&) = delete;
    Sound& operator=(const Sound&) = delete;

    void PlayWave(Wave wave) override;

private:
    struct Mailbox;

    static void Work(Mailbox& mailbox);
    static void PlayUntilTheEnd(const SdlAudio& sdl, Mailbox& mailbox);

    std::shared_ptr<Mailbox> mailbox_;  // shared with the worker, which may outlive this object
    std::thread worker_;
};

}  // namespace vorlund
