// SPDX-License-Identifier: MIT
#define SDL_MAIN_HANDLED
#include <SDL.h>

#include <QFile>
#include <QLibrary>
#include <array>
#include <chrono>
#include <cstdint>
#include <thread>
#include <utility>
#include <vector>

#include "ui/machine/sound_orders.h"

// The module by which the game speaks to SDL.

namespace vorlund {
namespace {

using namespace std::chrono_literals;

// In the order of Wave
constexpr std::array kFiles{":/sound/beep.wav", ":/sound/vrl1.wav", ":/sound/gun.wav", ":/sound/explode.wav"};
constexpr int kRate = 22050;
constexpr Uint16 kBufferedSamples = 512;  // 23 ms, so a click is heard at once and the device closes quickly
constexpr auto kLinger = 1s;  // what the device may still hold when the last sample has been handed over
constexpr auto kPollInterval = 10ms;

using AlsaErrorHandler = void (*)(const char*, int, const char*, int, const char*, ...);

void IgnoreAlsaError(const char*, int, const char*, int, const char*, ...) {}

void Prepare() {
    SDL_SetMainReady();
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_WAVE_TRUNCATION, "dropframe");  // the gunfire ends in a short block
    SDL_LogSetOutputFunction(nullptr, nullptr);
    using Setter = int (*)(AlsaErrorHandler);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): a library gives its functions so
    if (auto set = reinterpret_cast<Setter>(
            QLibrary::resolve(QStringLiteral("asound"), 2, "snd_lib_error_set_handler"))) {
        set(IgnoreAlsaError);
    }
}

// Samples of a recording in the device's format, native 16-bit mono at kRate; none if it cannot be read.
std::vector<Uint8> LoadWave(Wave wave) {
    QFile file(QString::fromLatin1(kFiles.at(static_cast<std::size_t>(wave))));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray image = file.readAll();
    SDL_AudioSpec form{};
    Uint8* decoded = nullptr;
    Uint32 length = 0;
    SDL_RWops* source = SDL_RWFromConstMem(image.constData(), static_cast<int>(image.size()));
    if (SDL_LoadWAV_RW(source, 1, &form, &decoded, &length) == nullptr) {
        return {};
    }
    std::vector<Uint8> samples(decoded, decoded + length);
    SDL_FreeWAV(decoded);

    SDL_AudioCVT conversion{};
    if (SDL_BuildAudioCVT(&conversion, form.format, form.channels, form.freq, AUDIO_S16SYS, 1, kRate) < 0) {
        return {};
    }
    samples.resize(samples.size() * static_cast<std::size_t>(conversion.len_mult));
    conversion.buf = samples.data();
    conversion.len = static_cast<int>(length);
    conversion.len_cvt = conversion.len;
    if (conversion.needed != 0 && SDL_ConvertAudio(&conversion) != 0) {
        return {};
    }
    samples.resize(static_cast<std::size_t>(conversion.len_cvt));
    return samples;
}

// The audio device while it is open. SDL's audio lives no longer than it: its watch for new devices never
// sleeps.
class Speaker {
public:
    Speaker() {
        if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) {
            return;
        }
        started_ = true;
        SDL_AudioSpec wish{};
        wish.freq = kRate;
        wish.format = AUDIO_S16SYS;
        wish.channels = 1;
        wish.samples = kBufferedSamples;
        device_ = SDL_OpenAudioDevice(nullptr, 0, &wish, nullptr, 0);
        SDL_PauseAudioDevice(device_, 0);
    }

    ~Speaker() {
        if (device_ != 0) {
            SDL_CloseAudioDevice(device_);
        }
        if (started_) {
            SDL_QuitSubSystem(SDL_INIT_AUDIO);
        }
    }

    Speaker(const Speaker&) = delete;
    Speaker& operator=(const Speaker&) = delete;

    bool IsAlive() const { return device_ != 0 && SDL_GetAudioDeviceStatus(device_) == SDL_AUDIO_PLAYING; }

    bool IsQuiet() const { return SDL_GetQueuedAudioSize(device_) == 0; }

    void Play(const std::vector<Uint8>& samples) const {
        SDL_ClearQueuedAudio(device_);
        SDL_QueueAudio(device_, samples.data(), static_cast<Uint32>(samples.size()));
    }

private:
    bool started_ = false;
    SDL_AudioDeviceID device_ = 0;
};

// Plays `samples` on `speaker`, which is opened where it is closed or its device has died, and left closed
// where none can be had. Gives the time after which the device may be closed.
std::chrono::milliseconds Play(const std::vector<Uint8>& samples, std::optional<Speaker>& speaker) {
    if (speaker && !speaker->IsAlive()) {
        speaker.reset();
    }
    if (!speaker) {
        speaker.emplace();
    }
    if (speaker->IsAlive()) {
        speaker->Play(samples);
    } else {
        speaker.reset();
    }
    return kLinger + std::chrono::milliseconds(samples.size() * 500 / kRate);
}

void PlayUntilTheEnd(SoundOrders& orders) {
    std::optional<Speaker> speaker;
    Wave playing{};
    std::chrono::milliseconds patience{};
    std::unique_lock lock(orders.mutex);
    while (!orders.ending || orders.wanted == Wave::Beep) {
        if (orders.wanted) {
            playing = *std::exchange(orders.wanted, std::nullopt);
            lock.unlock();
            patience = Play(LoadWave(playing), speaker);
            lock.lock();
        } else if (!speaker) {
            orders.changed.wait(lock);
        } else if (orders.changed.wait_for(lock, patience) == std::cv_status::timeout && speaker->IsQuiet()) {
            lock.unlock();
            speaker.reset();
            lock.lock();
        }
    }
    lock.unlock();  // while the device takes its time
    while (playing == Wave::Beep && speaker && speaker->IsAlive() && !speaker->IsQuiet()) {
        std::this_thread::sleep_for(kPollInterval);
    }
    speaker.reset();
}

}  // namespace
}  // namespace vorlund

extern "C" Q_DECL_EXPORT void PlayRecordings(vorlund::SoundOrders& orders) {
    vorlund::Prepare();
    vorlund::PlayUntilTheEnd(orders);
    SDL_TLSCleanup();  // SDL frees what belongs to a thread only for threads it made itself
}
