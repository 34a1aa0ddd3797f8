// SPDX-License-Identifier: MIT
#pragma once

#include <condition_variable>
#include <mutex>
#include <optional>

#include "ui/machine/sounds.h"

namespace vorlund {

/// The state shared by the user interface and the sound thread, guarded by Mutex.
struct SoundOrders {
    std::mutex Mutex;
    std::condition_variable Changed;
    std::optional<Wave> Wanted;  ///< the recording to play next
    bool Ending = false;         ///< set by the user interface: the thread is to end
    bool Ended = false;          ///< set by the thread when it ends
};

/// The type of the sound module's only exported function, `PlayRecordings`. It plays what is set in Wanted
/// and returns once Ending is set, after a click (Wave::Beep) that is still playing; other recordings are cut
/// off.
using PlayRecordingsFunction = void(SoundOrders&);

}  // namespace vorlund
