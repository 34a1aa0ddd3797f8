// SPDX-License-Identifier: MIT
#pragma once

#include <condition_variable>
#include <mutex>
#include <optional>

#include "ui/machine/sounds.h"

namespace vorlund {

/// What the user interface and the thread that plays the recordings have to tell each other.
struct SoundOrders {
    std::mutex mutex;
    std::condition_variable changed;
    std::optional<Wave> wanted;  ///< the recording to play next
    bool ending = false;         ///< asked for by the user interface
    bool ended = false;          ///< said by the thread
};

/// The function of the sound module by its name there, `PlayRecordings`: plays what is wanted until the end
/// is asked for. A click is then still heard out; anything else is cut off.
using PlayRecordingsFunction = void(SoundOrders&);

}  // namespace vorlund
