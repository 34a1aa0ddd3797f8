// SPDX-License-Identifier: MIT
#pragma once

namespace vorlund {

/// The game's recordings: the click of the title's commands, the title music, gunfire, and an explosion.
enum class Wave { Beep, Vrl1, Gun, Explode };

/// Whoever plays the recordings.
class Sounds {
public:
    virtual ~Sounds() = default;

    /// Starts `wave` from its beginning in place of the one that is playing, and returns at once.
    virtual void PlayWave(Wave wave) = 0;
};

}  // namespace vorlund
