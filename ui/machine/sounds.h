// SPDX-License-Identifier: MIT
#pragma once

namespace vorlund {

/// The recordings: the click of the title's commands, the title music, gunfire and an explosion.
enum class Wave { Beep, Vrl1, Gun, Explode };

/// The interface through which the windows play recordings.
class Sounds {
public:
    virtual ~Sounds() = default;

    /// Stops the recording that is playing, starts `wave` and returns without waiting for it.
    virtual void PlayWave(Wave wave) = 0;
};

}  // namespace vorlund
