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

constexpr auto kFarewell = 1s;  // a healthy device opens, plays the click and closes in half of that

void Work(const std::string& module, SoundOrders& orders) {
    if (void* library = dlopen(module.c_str(), RTLD_NOW)) {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): a library gives its functions so
        reinterpret_cast<PlayRecordingsFunction*>(dlsym(library, "PlayRecordings"))(orders);
    }
    const std::lock_guard lock(orders.mutex);
    orders.ended = true;
    orders.changed.notify_all();
}

}  // namespace

void QuietenSoundServers() {
    setenv("PULSE_LOG_SYSLOG", "1", 0);
    setenv("PIPEWIRE_DEBUG", "0", 0);
}

SoundPlayer::SoundPlayer(std::string module)
    : module_(std::move(module)), orders_(std::make_shared<SoundOrders>()) {}

SoundPlayer::~SoundPlayer() {
    if (!thread_.joinable()) {
        return;
    }
    std::unique_lock lock(orders_->mutex);
    orders_->ending = true;
    orders_->changed.notify_all();
    const bool ended = orders_->changed.wait_for(lock, kFarewell, [this] { return orders_->ended; });
    lock.unlock();
    if (ended) {
        thread_.join();
    } else {
        thread_.detach();
    }
}

void SoundPlayer::PlayWave(Wave wave) {
    {
        const std::lock_guard lock(orders_->mutex);
        orders_->wanted = wave;
    }
    orders_->changed.notify_all();
    if (!thread_.joinable()) {
        StartThread();
    }
}

void SoundPlayer::StartThread() {
    try {
        thread_ = std::thread([module = module_, orders = orders_] { Work(module, *orders); });
    } catch (const std::system_error&) {  // the machine has no thread to give: the next recording asks again
    }
}

}  // namespace vorlund
