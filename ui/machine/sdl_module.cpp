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

// The sound module: the only code that calls SDL.

namespace vorlund {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

/// In the order of Wave
constexpr std::array<QStringView, 4> FileNames{u":/sound/beep.wav", u":/sound/vrl1.wav", u":/sound/gun.wav",
                                               u":/sound/explode.wav"};
constexpr int SampleRate = 22050;
constexpr Uint16 BufferedSamples = 512;  ///< 23 ms of latency, for the start of a click and for closing
constexpr auto DeviceLatency = 1s;       ///< how long a device may still play after SDL's queue is empty
constexpr auto PollInterval = 10ms;

using AlsaErrorHandler = void (*)(const char*, int, const char*, int, const char*, ...);

void IgnoreAlsaError(const char*, int, const char*, int, const char*, ...) {}

void Prepare() {
    SDL_SetMainReady();
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_WAVE_TRUNCATION, "dropframe");  // the gunfire's last ADPCM block is short
    SDL_LogSetOutputFunction(nullptr, nullptr);
    using Setter = int (*)(AlsaErrorHandler);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): dynamic symbols have no type
    if (auto set = reinterpret_cast<Setter>(QLibrary::resolve(u"asound"_s, 2, "snd_lib_error_set_handler"))) {
        set(IgnoreAlsaError);
    }
}

/// Decodes a recording to the device's format, native 16-bit mono at SampleRate. Empty if that fails.
std::vector<Uint8> LoadWave(Wave wave) {
    QFile file(FileNames.at(static_cast<std::size_t>(wave)).toString());
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
    if (SDL_BuildAudioCVT(&conversion, form.format, form.channels, form.freq, AUDIO_S16SYS, 1, SampleRate) <
        0) {
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

/// The open audio device. SDL's audio subsystem is shut down with it, because its hot-plug thread polls as
/// long as the subsystem runs.
class Speaker {
public:
    Speaker() {
        if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) {
            return;
        }
        started_ = true;
        SDL_AudioSpec wish{};
        wish.freq = SampleRate;
        wish.format = AUDIO_S16SYS;
        wish.channels = 1;
        wish.samples = BufferedSamples;
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

/// Plays `samples`, first opening `speaker` if it is closed or its device has been lost; it stays empty if no
/// device can be opened. Returns how long to wait before checking whether the device can be closed.
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
    return DeviceLatency + std::chrono::milliseconds(samples.size() * 500 / SampleRate);
}

void RunPlaybackLoop(SoundOrders& orders) {
    std::optional<Speaker> speaker;
    Wave playing{};
    std::chrono::milliseconds closeDelay{};
    std::unique_lock lock(orders.Mutex);
    while (!orders.Ending || orders.Wanted == Wave::Beep) {
        if (orders.Wanted) {
            playing = *std::exchange(orders.Wanted, std::nullopt);
            lock.unlock();
            closeDelay = Play(LoadWave(playing), speaker);
            lock.lock();
        } else if (!speaker) {
            orders.Changed.wait(lock);
        } else if (orders.Changed.wait_for(lock, closeDelay) == std::cv_status::timeout &&
                   speaker->IsQuiet()) {
            lock.unlock();
            speaker.reset();
            lock.lock();
        }
    }
    lock.unlock();  // closing the device may block
    while (playing == Wave::Beep && speaker && speaker->IsAlive() && !speaker->IsQuiet()) {
        std::this_thread::sleep_for(PollInterval);
    }
    speaker.reset();
}

}  // namespace
}  // namespace vorlund

extern "C" Q_DECL_EXPORT void PlayRecordings(vorlund::SoundOrders& orders) {
    vorlund::Prepare();
    vorlund::RunPlaybackLoop(orders);
    SDL_TLSCleanup();  // SDL frees thread-local data only in threads that it created
}
