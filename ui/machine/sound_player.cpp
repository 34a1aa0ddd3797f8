// SPDX-License-Identifier: MIT
#include "ui/machine/sound_player.h"

#include <dlfcn.h>

#include <chrono>
#include <cstdlib>
#include <system_error>
#include <utility>

#include "ui/machine/sound_orders.h"

namespace vorlund {
namespace {

using namespace std::chrono_literals;

constexpr auto ShutdownTimeout = 1s;  ///< opening a device, playing the click and closing take half of that

void RunThread(const std::string& module, SoundOrders& orders) {
    if (void* library = dlopen(module.c_str(), RTLD_NOW)) {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): dynamic symbols have no type
        reinterpret_cast<PlayRecordingsFunction*>(dlsym(library, "PlayRecordings"))(orders);
    }
    const std::lock_guard lock(orders.Mutex);
    orders.Ended = true;
    orders.Changed.notify_all();
}

}  // namespace

void SilenceSoundServerLogs() {
    setenv("PULSE_LOG_SYSLOG", "1", 0);
    setenv("PIPEWIRE_DEBUG", "0", 0);
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
