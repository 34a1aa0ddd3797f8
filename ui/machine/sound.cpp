#include "ui/machine/sound.h"

#include <QFile>
#include <QLibrary>
#include <QString>
#include <array>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

#include "ui/machine/sdl_audio.h"

namespace vorlund {
namespace {

using namespace std::chrono_literals;

// In the order of Wave
constexpr std::array kFiles{":/sound/beep.wav", ":/sound/vrl1.wav", ":/sound/gun.wav", ":/sound/explode.wav"};
constexpr int kRate = 22050;
constexpr Uint16 kBufferedSamples = 512;  // 23 ms: a click answers the hand, and closing is quick
constexpr auto kLinger = 1s;       // what the device may still hold when the last sample has been handed over
constexpr auto kFarewell = 300ms;  // a healthy device closes in half of that

using AlsaErrorHandler = void (*)(const char*, int, const char*, int, const char*, ...);

void IgnoreAlsaError(const char*, int, const char*, int, const char*, ...) {}

// The sound servers' libraries report to the terminal, unless their user or this asks for another place.
void QuietenServers() {
    for (const auto& [name, value] : {std::pair("PULSE_LOG_SYSLOG", "1"), std::pair("PIPEWIRE_DEBUG", "0")}) {
        if (!qEnvironmentVariableIsSet(name)) {
            qputenv(name, value);
        }
    }
}

void Prepare(const SdlAudio& sdl) {
    sdl.SetMainReady();
    sdl.SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    sdl.SetHint(SDL_HINT_WAVE_TRUNCATION, "dropframe");  // the gunfire ends in a short block
    sdl.LogSetOutputFunction(nullptr, nullptr);
    using Setter = int (*)(AlsaErrorHandler);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): a library gives its functions so
    if (auto set = reinterpret_cast<Setter>(
            QLibrary::resolve(QStringLiteral("asound"), 2, "snd_lib_error_set_handler"))) {
        set(IgnoreAlsaError);
    }
}

// Samples of a recording in the device's format, native 16-bit mono at kRate; none if it cannot be read.
std::vector<Uint8> LoadWave(const SdlAudio& sdl, Wave wave) {
    QFile file(QString::fromLatin1(kFiles.at(static_cast<std::size_t>(wave))));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray image = file.readAll();
    SDL_AudioSpec form{};
    Uint8* decoded = nullptr;
    Uint32 length = 0;
    SDL_RWops* source = sdl.RWFromConstMem(image.constData(), static_cast<int>(image.size()));
    if (sdl.LoadWAV_RW(source, 1, &form, &decoded, &length) == nullptr) {
        return {};
    }
    std::vector<Uint8> samples(decoded, decoded + length);
    sdl.FreeWAV(decoded);

    SDL_AudioCVT conversion{};
    if (sdl.BuildAudioCVT(&conversion, form.format, form.channels, form.freq, AUDIO_S16SYS, 1, kRate) < 0) {
        return {};
    }
    samples.resize(samples.size() * static_cast<std::size_t>(conversion.len_mult));
    conversion.buf = samples.data();
    conversion.len = static_cast<int>(length);
    conversion.len_cvt = conversion.len;
    if (conversion.needed != 0 && sdl.ConvertAudio(&conversion) != 0) {
        return {};
    }
    samples.resize(static_cast<std::size_t>(conversion.len_cvt));
    return samples;
}

// The audio device while it is open. SDL's audio lives no longer than it: its watch for new devices never
// sleeps.
class Speaker {
public:
    explicit Speaker(const SdlAudio& sdl) : sdl_(sdl) {
        if (sdl_.InitSubSystem(SDL_INIT_AUDIO) != 0) {
            return;
        }
        started_ = true;
        SDL_AudioSpec wish{};
        wish.freq = kRate;
        wish.format = AUDIO_S16SYS;
        wish.channels = 1;
        wish.samples = kBufferedSamples;
        device_ = sdl_.OpenAudioDevice(nullptr, 0, &wish, nullptr, 0);
        sdl_.PauseAudioDevice(device_, 0);
    }

    ~Speaker() {
        if (device_ != 0) {
            sdl_.CloseAudioDevice(device_);
        }
        if (started_) {
            sdl_.QuitSubSystem(SDL_INIT_AUDIO);
        }
    }

    Speaker(const Speaker&) = delete;
    Speaker& operator=(const Speaker&) = delete;

    bool IsAlive() const { return device_ != 0 && sdl_.GetAudioDeviceStatus(device_) == SDL_AUDIO_PLAYING; }

    bool IsQuiet() const { return sdl_.GetQueuedAudioSize(device_) == 0; }

    void Play(const std::vector<Uint8>& samples) const {
        sdl_.ClearQueuedAudio(device_);
        sdl_.QueueAudio(device_, samples.data(), static_cast<Uint32>(samples.size()));
    }

private:
    const SdlAudio& sdl_;
    bool started_ = false;
    SDL_AudioDeviceID device_ = 0;
};

}  // namespace

struct Sound::Mailbox {
    std::mutex mutex;
    std::condition_variable changed;
    std::optional<Wave> wanted;  // the recording to play next
    bool ending = false;
    bool ended = false;
};

Sound::Sound() : mailbox_(std::make_shared<Mailbox>()) {
    QuietenServers();  // before there is a second thread that could be reading the environment
    worker_ = std::thread([mailbox = mailbox_] { Work(*mailbox); });
}

Sound::~Sound() {
    std::unique_lock lock(mailbox_->mutex);
    mailbox_->ending = true;
    mailbox_->changed.notify_all();
    const bool ended = mailbox_->changed.wait_for(lock, kFarewell, [this] { return mailbox_->ended; });
    lock.unlock();
    if (ended) {
        worker_.join();
    } else {
        worker_.detach();
    }
}

void Sound::PlayWave(Wave wave) {
    const std::lock_guard lock(mailbox_->mutex);
    mailbox_->wanted = wave;
    mailbox_->changed.notify_all();
}

void Sound::Work(Mailbox& mailbox) {
    std::unique_lock lock(mailbox.mutex);
    mailbox.changed.wait(lock, [&mailbox] { return mailbox.wanted || mailbox.ending; });
    if (!mailbox.ending) {
        lock.unlock();
        if (const SdlAudio sdl; sdl.IsThere()) {
            Prepare(sdl);
            PlayUntilTheEnd(sdl, mailbox);
            sdl.TLSCleanup();  // SDL frees what belongs to a thread only for threads it made itself
        }
        lock.lock();
    }
    mailbox.ended = true;
    mailbox.changed.notify_all();
}

void Sound::PlayUntilTheEnd(const SdlAudio& sdl, Mailbox& mailbox) {
    std::optional<Speaker> speaker;
    std::chrono::milliseconds patience{};
    std::unique_lock lock(mailbox.mutex);
    while (!mailbox.ending) {
        if (mailbox.wanted) {
            const Wave wave = *std::exchange(mailbox.wanted, std::nullopt);
            lock.unlock();
            const std::vector<Uint8> samples = LoadWave(sdl, wave);
            if (speaker && !speaker->IsAlive()) {
                speaker.reset();
            }
            if (!speaker) {
                speaker.emplace(sdl);
            }
            if (speaker->IsAlive()) {
                speaker->Play(samples);
                patience = kLinger + std::chrono::milliseconds(samples.size() * 500 / kRate);
            } else {
                speaker.reset();
            }
            lock.lock();
        } else if (!speaker) {
            mailbox.changed.wait(lock);
        } else if (mailbox.changed.wait_for(lock, patience) == std::cv_status::timeout &&
                   speaker->IsQuiet()) {
            lock.unlock();
            speaker.reset();
            lock.lock();
        }
    }
    lock.unlock();  // while the device takes its time to close
    speaker.reset();
}

}  // namespace vorlund
