// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <thread>

#include "ui/machine/sounds.h"

namespace vorlund {

struct SoundOrders;

/// Sets the environment variables that keep the client libraries of PulseAudio and PipeWire from logging to
/// the terminal, unless they are set already. Call it before any thread is started: changing the environment
/// is not thread-safe.
void SilenceSoundServerLogs();

/// Plays the game's recordings, one at a time, beside the user interface.
///
/// Everything that may block happens in a thread that is started with the first recording: it loads the sound
/// module, opens the audio device for a recording and closes it after the last sample, so that a silent game
/// holds no device and causes no wake-ups. If the thread, the module or a device is not available, nothing is
/// played and nothing is reported.
class SoundPlayer final : public Sounds {
public:
    /// `module` is the path of the sound module.
    explicit SoundPlayer(std::string module);

    /// Ends the thread: a click is played to its end, other recordings are cut off. If the thread has not
    /// ended after a second, because the device hangs, it is detached.
    ~SoundPlayer() override;

    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;

    void PlayWave(Wave wave) override;

private:
    void StartThread();

    std::string module_;
    std::shared_ptr<SoundOrders> orders_;  ///< shared: a detached thread outlives this object
    std::thread thread_;
};

}  // namespace vorlund
