#include "ui/sound.h"

#define SDL_MAIN_HANDLED
#include <SDL.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>
#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <optional>
#include <vector>

using vorlund::Sound;

namespace {

constexpr std::size_t kHalfSecond = 11025;

QByteArray ReadFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::vector<int> Samples(const QByteArray& bytes) {
    std::vector<int> samples(static_cast<std::size_t>(bytes.size() / 2));
    for (std::size_t i = 0; i < samples.size(); ++i) {
        samples[i] = qFromLittleEndian<qint16>(bytes.constData() + 2 * i);
    }
    return samples;
}

QByteArray Chunk(const QByteArray& wave, const char* name) {
    for (qsizetype at = 12; at + 8 <= wave.size();) {
        const auto size = qFromLittleEndian<quint32>(wave.constData() + at + 4);
        if (wave.mid(at, 4) == name) {
            return wave.mid(at + 8, size);
        }
        at += 8 + size + size % 2;
    }
    return {};
}

int Loudest(const std::vector<int>& samples) {
    return std::accumulate(samples.begin(), samples.end(), 0,
                           [](int loudest, int sample) { return std::max(loudest, std::abs(sample)); });
}

std::vector<int> WithoutLeadingSilence(std::vector<int> samples) {
    samples.erase(samples.begin(),
                  std::find_if(samples.begin(), samples.end(), [](int x) { return x != 0; }));
    return samples;
}

// Takes what the process prints on its error stream until it is asked for it.
class ErrorStream {
public:
    explicit ErrorStream(const QString& path) : saved_(dup(STDERR_FILENO)), path_(path) {
        const int file = open(qPrintable(path), O_CREAT | O_RDWR | O_TRUNC, 0600);
        dup2(file, STDERR_FILENO);
        close(file);
    }

    QByteArray Restore() {
        dup2(saved_, STDERR_FILENO);
        close(saved_);
        return ReadFile(path_);
    }

private:
    int saved_;
    QString path_;
};

}  // namespace

class SoundTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void Recording_data();
    void Recording();
    void EveryRecordingIsHeard_data();
    void EveryRecordingIsHeard();
    void TheClickCutsOffTheMusic();
    void AnUnknownNameLeavesTheMusicAlone();
    void WithoutADeviceNothingIsPrinted_data();
    void WithoutADeviceNothingIsPrinted();
    void ADeviceThatHangsDelaysNobody();

private:
    QString Output() const { return directory_->filePath("output.raw"); }

    std::vector<int> Heard() const { return WithoutLeadingSilence(Samples(ReadFile(Output()))); }

    // What was heard from the place on where it stops being the music from its beginning without a gap.
    std::vector<int> HeardAfterMusic() const {
        const std::vector<int> heard = Heard();
        const auto music = WithoutLeadingSilence(Samples(Chunk(ReadFile(":/sound/vrl1.wav"), "data")));
        return {std::mismatch(heard.begin(), heard.end(), music.begin(), music.end()).first, heard.end()};
    }

    std::optional<QTemporaryDir> directory_;
};

void SoundTest::init() {
    directory_.emplace();
    qputenv("SDL_AUDIODRIVER", "disk");
    qputenv("SDL_DISKAUDIOFILE", Output().toLocal8Bit());
}

void SoundTest::Recording_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QList<int>>("form");  // encoding, channels, rate, block size, bits
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("sampleCount");
    QTest::addRow("click: PCM of 8 bits") << "beep" << QList{1, 1, 11025, 1, 8} << 1702 << 1702;
    QTest::addRow("music: PCM of 16 bits") << "vrl1" << QList{1, 1, 22050, 2, 16} << 447290 << 223645;
    QTest::addRow("gunfire: ADPCM") << "gun" << QList{2, 1, 11025, 256, 4} << 12119 << 23662;
    QTest::addRow("explosion: PCM of 8 bits") << "explode" << QList{1, 1, 8000, 1, 8} << 23057 << 23057;
}

void SoundTest::Recording() {
    QFETCH(QString, file);
    QFETCH(QList<int>, form);
    const QByteArray wave = ReadFile(":/sound/" + file + ".wav");
    QCOMPARE(wave.left(4) + wave.mid(8, 4), "RIFFWAVE");
    QCOMPARE(qFromLittleEndian<quint32>(wave.constData() + 4), quint32(wave.size() - 8));
    QCOMPARE(wave.size() % 2, 0);
    const QByteArray header = Chunk(wave, "fmt ");
    const auto half = [&header](int at) { return int(qFromLittleEndian<quint16>(header.constData() + at)); };
    const int rate = qFromLittleEndian<qint32>(header.constData() + 4);
    QCOMPARE((QList{half(0), half(2), rate, half(12), half(14)}), form);
    QTEST(int(Chunk(wave, "data").size()), "length");

    SDL_SetHint(SDL_HINT_WAVE_TRUNCATION, "dropframe");
    SDL_AudioSpec spec{};
    Uint8* decoded = nullptr;
    Uint32 length = 0;
    QVERIFY(
        SDL_LoadWAV_RW(SDL_RWFromConstMem(wave.constData(), int(wave.size())), 1, &spec, &decoded, &length));
    std::vector<int> samples;
    if (spec.format == AUDIO_U8) {
        std::transform(decoded, decoded + length, std::back_inserter(samples),
                       [](int x) { return 256 * (x - 128); });
    } else {
        samples = Samples(QByteArray(reinterpret_cast<char*>(decoded), int(length)));
    }
    SDL_FreeWAV(decoded);
    QTEST(int(samples.size()), "sampleCount");
    if (half(0) == 2) {
        QCOMPARE(qFromLittleEndian<qint32>(Chunk(wave, "fact").constData()), int(samples.size()));
    }
    QVERIFY2(Loudest(samples) > 16000 && Loudest(samples) < 32000, "loud, and not clipped");
    QVERIFY2(std::abs(samples.front()) < 256 && std::abs(samples.back()) < 256, "begins and ends in silence");
}

void SoundTest::EveryRecordingIsHeard_data() {
    QTest::addColumn<QByteArray>("name");
    QTest::addRow("the click") << QByteArray("BEEP");
    QTest::addRow("the gunfire after a battle") << QByteArray("GUN");
    QTest::addRow("the explosion after a strike") << QByteArray("EXPLODE");
}

void SoundTest::EveryRecordingIsHeard() {
    QFETCH(QByteArray, name);
    Sound sound;
    sound.PlayWave(name.constData());
    QTRY_VERIFY(Loudest(Heard()) > 8000);
}

void SoundTest::TheClickCutsOffTheMusic() {
    Sound sound;
    sound.PlayWave("VRL1");
    QTRY_VERIFY(Heard().size() > kHalfSecond);
    QVERIFY(HeardAfterMusic().empty());
    sound.PlayWave("BEEP");
    QTRY_VERIFY(HeardAfterMusic().size() > kHalfSecond);
    const std::vector<int> click = HeardAfterMusic();
    const auto comesOut = click.begin() + kHalfSecond / 10;  // the switch comes out again after 52 ms
    const auto end = click.begin() + kHalfSecond / 2;
    QVERIFY(Loudest({click.begin(), comesOut}) > 8000);
    QVERIFY(Loudest({comesOut, end}) > 4000);
    QCOMPARE(Loudest({end, click.end()}), 0);
    QTRY_VERIFY2(SDL_WasInit(SDL_INIT_AUDIO) == 0, "a silent game holds no device");
}

void SoundTest::AnUnknownNameLeavesTheMusicAlone() {
    Sound sound;
    sound.PlayWave("VRL1");
    QTRY_VERIFY(Heard().size() > kHalfSecond);
    sound.PlayWave("TRUMPET");
    sound.PlayWave("");
    QTRY_VERIFY(Heard().size() > 3 * kHalfSecond);
    QVERIFY(HeardAfterMusic().empty());
}

void SoundTest::WithoutADeviceNothingIsPrinted_data() {
    QTest::addColumn<QByteArray>("driver");
    QTest::addRow("no such driver") << QByteArray("gramophone");
    QTest::addRow("a driver that plays to nobody") << QByteArray("dummy");
    QTest::addRow("ALSA without its card") << QByteArray("alsa");
    QTest::addRow("a sound server that cannot be reached") << QByteArray("pulseaudio");
}

void SoundTest::WithoutADeviceNothingIsPrinted() {
    QFETCH(QByteArray, driver);
    qputenv("SDL_AUDIODRIVER", driver);
    qputenv("AUDIODEV", "no-such-card");
    qunsetenv("PULSE_SERVER");
    qputenv("PULSE_RUNTIME_PATH", "/proc/none");  // a folder that the server's library fails to make
    ErrorStream errors(directory_->filePath("errors"));
    {
        Sound sound;
        sound.PlayWave("GUN");
        QTest::qWait(300);  // nothing shows that an attempt has failed
    }
    QCOMPARE(errors.Restore(), QByteArray());
}

void SoundTest::ADeviceThatHangsDelaysNobody() {
    QVERIFY(mkfifo(qPrintable(Output()), 0600) == 0);
    QElapsedTimer time;
    {
        Sound sound;
        sound.PlayWave("VRL1");
        QTRY_VERIFY(SDL_WasInit(SDL_INIT_AUDIO) != 0);
        time.start();
        for (int i = 0; i < 100; ++i) {
            sound.PlayWave("GUN");
        }
        QVERIFY(time.elapsed() < 1000);
    }
    QVERIFY(time.elapsed() < 3000);
    // Opening the other end lets the device go on, and shows that it was waiting.
    pollfd reader{open(qPrintable(Output()), O_RDONLY | O_NONBLOCK), POLLIN, 0};
    QCOMPARE(poll(&reader, 1, 5000), 1);
    QTRY_VERIFY(SDL_WasInit(SDL_INIT_AUDIO) == 0);
    close(reader.fd);
}

QTEST_GUILESS_MAIN(SoundTest)
#include "sound_test.moc"
