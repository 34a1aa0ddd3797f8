// SPDX-License-Identifier: MIT
#include "ui/machine/sound_player.h"

#include <QByteArray>
#include <QtGlobal>
#include <chrono>
#include <system_error>
#include <utility>

#include "machine/sound_library.h"
#include "ui/machine/sound_orders.h"

namespace vorlund {
namespace {

using namespace std::chrono_literals;

constexpr auto ShutdownTimeout = 1s;  ///< opening a device, playing the click and closing take half of that

void RunThread(const std::string& module, SoundOrders& orders) {
    if (void* play = SoundFunction(module, "PlayRecordings")) {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): dynamic symbols have no type
        reinterpret_cast<PlayRecordingsFunction*>(play)(orders);
    }
    const std::lock_guard lock(orders.Mutex);
    orders.Ended = true;
    orders.Changed.notify_all();
}

void SetUnlessSet(const char* variable, const char* value) {
    if (!qEnvironmentVariableIsSet(variable)) {
        qputenv(variable, QByteArray(value));
    }
}

}  // namespace

void SilenceSoundServerLogs() {
    SetUnlessSet("PULSE_LOG_SYSLOG", "1");
    SetUnlessSet("PIPEWIRE_DEBUG", "0");
}

SoundPlayer::SoundPlayer(std::string module)
    : module_(std::move(module)), orders_(std::make_shared<SoundOrders>()) {}

SoundPlayer::~SoundPlayer() {
    if (!thread_.joinable()) {
        return;
    }
    std::unique_lock lock(orders_->Mutex);
    orders_->Ending = true;
    orders_->Changed.notify_all();
    const bool ended = orders_->Changed.wait_for(lock, ShutdownTimeout, [this] { return orders_->Ended; });
    lock.unlock();
    if (ended) {
        thread_.join();
    } else {
        thread_.detach();
    }
}

void SoundPlayer::PlayWave(Wave wave) {
    {
        const std::lock_guard lock(orders_->Mutex);
        orders_->Wanted = wave;
    }
    orders_->Changed.notify_all();
    if (!thread_.joinable()) {
        StartThread();
    }
}

void SoundPlayer::StartThread() {
    try {
        thread_ = std::thread([module = module_, orders = orders_] { RunThread(module, *orders); });
    } catch (const std::system_error&) {  // out of threads: the next recording tries again
    }
}

}  // namespace vorlund
