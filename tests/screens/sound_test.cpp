#include "ui/machine/sound.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTest>
#include <QtEndian>
#include <algorithm>

#include "tests/screens/hands.h"

namespace vorlund {
namespace {

constexpr std::size_t HalfSecond = 11025;

// Newer releases of the sound library open no device below 44,100 a second in stereo.
bool IsStereo(const std::vector<int>& samples) {
    bool same = true;
    for (std::size_t i = 0; i + 1 < samples.size(); i += 2) {
        same = same && samples[i] == samples[i + 1];
    }
    return same;
}

// Samples of 16 bits, 22,050 a second, from byte `start` on, without the silence before them; none if there
// is no such file.
std::vector<int> Samples(const QString& path, qint64 start = 0) {
    QFile file(path);
    const QByteArray bytes =
        file.open(QIODevice::ReadOnly) && file.seek(start) ? file.readAll() : QByteArray();
    std::vector<int> samples;
    for (qsizetype i = 0; i + 1 < bytes.size(); i += 2) {
        samples.push_back(qFromLittleEndian<qint16>(bytes.constData() + i));
    }
    if (IsStereo(samples)) {
        for (std::size_t i = 0; i < samples.size(); i += 4) {
            samples[i / 4] = samples[i];
        }
        samples.resize((samples.size() + 3) / 4);
    }
    return {std::find_if(samples.begin(), samples.end(), [](int x) { return x != 0; }), samples.end()};
}

int Loudest(const std::vector<int>& samples) {
    const auto [low, high] = std::minmax_element(samples.begin(), samples.end());
    return samples.empty() ? 0 : std::max(-*low, *high);
}

// A device that writes what is played to a file.
class SoundOnDisk : public testing::Test {
protected:
    SoundOnDisk() {
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", output_.toLocal8Bit());
    }

    // From where it stops being the music from its beginning without a gap.
    std::vector<int> HeardAfterMusic() const {
        const std::vector<int> heard = Samples(output_);
        const auto music = Samples(":/sound/vrl1.wav", 44);
        return {std::mismatch(heard.begin(), heard.end(), music.begin(), music.end()).first, heard.end()};
    }

    QTemporaryDir folder_;
    QString output_ = folder_.filePath("output.raw");
};

TEST_F(SoundOnDisk, EveryRecordingIsHeardInItsLength) {
    // Samples at 22,050 a second of the click, of the gunfire, which is coded in four bits, and of the
    // explosion
    const std::vector<std::pair<Wave, std::size_t>> rows{
        {Wave::Beep, 2039}, {Wave::Gun, 47002}, {Wave::Explode, 60378}};
    for (const auto& [wave, length] : rows) {
        SCOPED_TRACE(static_cast<int>(wave));
        Sound sound;
        sound.PlayWave(wave);
        EXPECT_TRUE(QTest::qWaitFor([this, due = length] { return Samples(output_).size() > due; }, 10000));
        const std::vector<int> heard = Samples(output_);
        EXPECT_TRUE(Loudest(heard) > 16000 && Loudest(heard) < 32767) << Loudest(heard);
        const auto last = std::find_if(heard.rbegin(), heard.rend(), [](int x) { return x != 0; });
        EXPECT_NEAR(double(heard.rend() - last), double(length), 10);
        QFile::remove(output_);
    }
}

TEST_F(SoundOnDisk, TheClickCutsOffTheMusic) {
    Sound sound;
    sound.PlayWave(Wave::Vrl1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Samples(output_).size() > HalfSecond; }));
    EXPECT_TRUE(HeardAfterMusic().empty());
    sound.PlayWave(Wave::Beep);
    EXPECT_TRUE(QTest::qWaitFor([this] { return HeardAfterMusic().size() > HalfSecond; }));
    const std::vector<int> click = HeardAfterMusic();
    EXPECT_GT(Loudest(click), 16000);
    EXPECT_EQ(Loudest({click.begin() + HalfSecond / 2, click.end()}), 0);
    const auto isClosed = [this] {
        const qint64 before = QFile(output_).size();
        QTest::qWait(200);
        return QFile(output_).size() == before;
    };
    EXPECT_TRUE(QTest::qWaitFor(isClosed)) << "a silent game holds no device";
}

TEST_F(SoundOnDisk, WithoutADeviceNothingIsPrinted) {
    qputenv("AUDIODEV", "no-such-card");
    qputenv("PULSE_RUNTIME_PATH", "/proc/none");  // a folder that the server's library fails to make
    for (const char* driver : {"gramophone", "dummy", "alsa", "pulseaudio"}) {
        qputenv("SDL_AUDIODRIVER", driver);
        testing::internal::CaptureStderr();
        {
            Sound sound;
            sound.PlayWave(Wave::Gun);
            QTest::qWait(300);  // nothing shows that an attempt has failed
        }
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << driver;
    }
}

TEST_F(SoundOnDisk, ADeviceThatHangsDelaysNobody) {
    ASSERT_EQ(mkfifo(qPrintable(output_), 0600), 0);
    QElapsedTimer time;
    time.start();
    {
        Sound sound;
        sound.PlayWave(Wave::Beep);
        QTest::qWait(300);
        sound.PlayWave(Wave::Gun);
    }
    EXPECT_LT(time.elapsed(), 3000);
    // Opening the other end lets the device go on, and shows that it was waiting.
    pollfd reader{open(qPrintable(output_), O_RDONLY | O_NONBLOCK), POLLIN, 0};
    EXPECT_EQ(poll(&reader, 1, 5000), 1);
    for (char sample = 0; poll(&reader, 1, 5000) == 1 && read(reader.fd, &sample, 1) != 0;) {
    }
    close(reader.fd);
}

}  // namespace
}  // namespace vorlund
