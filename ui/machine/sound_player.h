// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <thread>

#include "ui/machine/sounds.h"

namespace vorlund {

struct SoundOrders;

/// Asks the sound servers' libraries, which report trouble to the terminal, to be quiet, unless their user
/// has chosen otherwise. It changes the environment, so it is called before there is a second thread.
void QuietenSoundServers();

/// Plays the game's recordings, one at a time, beside the user interface.
///
/// A thread, started with the first recording, does everything that may take its time: it loads the module
/// that is linked to SDL, opens the audio device for a sound and closes it when all is quiet again, so that a
/// silent game holds no device and wakes nothing up. Where a thread, SDL or a device cannot be had, the game
/// is silent; nothing is reported.
class SoundPlayer final : public Sounds {
public:
    /// `module` is the file of the sound module.
    explicit SoundPlayer(std::string module);

    /// Lets a click finish and cuts anything else off. Waits until the device is closed, but no longer than a
    /// second: a device that hangs is left behind.
    ~SoundPlayer() override;

    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;

    void PlayWave(Wave wave) override;

private:
    void StartThread();

    std::string module_;
    std::shared_ptr<SoundOrders> orders_;  // shared with the thread, which may outlive this object
    std::thread thread_;
};

}  // namespace vorlund
