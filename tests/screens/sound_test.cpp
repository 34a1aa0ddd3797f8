// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>
#include <algorithm>

#include "ui/machine/sound_player.h"

namespace vorlund {
namespace {

constexpr std::size_t HalfSecond = 11025;  ///< in samples

// Newer releases of SDL open the device at 44,100 Hz in stereo.
bool IsStereo(const std::vector<int>& samples) {
    bool same = true;
    for (std::size_t i = 0; i + 1 < samples.size(); i += 2) {
        same = same && samples[i] == samples[i + 1];
    }
    return same;
}

// The 16-bit samples at 22,050 Hz from byte `start` of the file on, without leading silence; none if there is
// no file.
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

// The count of samples without trailing silence.
double Length(const std::vector<int>& samples) {
    return double(samples.rend() -
                  std::find_if(samples.rbegin(), samples.rend(), [](int x) { return x != 0; }));
}

// With SDL's disk driver, which writes the samples to a file.
class SoundPlayerTest : public testing::Test {
protected:
    SoundPlayerTest() {
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", output_.toLocal8Bit());
    }

    // What follows the part of the output that equals the beginning of the music.
    std::vector<int> HeardAfterMusic() const {
        const std::vector<int> heard = Samples(output_);
        const auto music = Samples(":/sound/vrl1.wav", 44);
        return {std::mismatch(heard.begin(), heard.end(), music.begin(), music.end()).first, heard.end()};
    }

    QTemporaryDir folder_;
    QString output_ = folder_.filePath("output.raw");
};

TEST_F(SoundPlayerTest, RecordingsHaveTheirLength) {
    // In samples at 22,050 Hz; the gunfire is ADPCM
    const std::vector<std::pair<Wave, std::size_t>> rows{
        {Wave::Beep, 2039}, {Wave::Gun, 47002}, {Wave::Explode, 60378}};
    for (const auto& [wave, length] : rows) {
        SCOPED_TRACE(static_cast<int>(wave));
        SoundPlayer sounds(SOUND_MODULE);
        sounds.PlayWave(wave);
        EXPECT_TRUE(QTest::qWaitFor([this, due = length] { return Samples(output_).size() > due; }, 10000));
        const std::vector<int> heard = Samples(output_);
        EXPECT_TRUE(Loudest(heard) > 16000 && Loudest(heard) < 32767) << Loudest(heard);
        EXPECT_NEAR(Length(heard), double(length), 10);
        QFile::remove(output_);
    }
}

TEST_F(SoundPlayerTest, TheClickCutsOffTheMusic) {
    SoundPlayer sounds(SOUND_MODULE);
    sounds.PlayWave(Wave::Vrl1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Samples(output_).size() > HalfSecond; }));
    EXPECT_TRUE(HeardAfterMusic().empty());
    sounds.PlayWave(Wave::Beep);
    EXPECT_TRUE(QTest::qWaitFor([this] { return HeardAfterMusic().size() > HalfSecond; }));
    const std::vector<int> click = HeardAfterMusic();
    EXPECT_GT(Loudest(click), 16000);
    EXPECT_EQ(Loudest({click.begin() + HalfSecond / 2, click.end()}), 0);
    const auto isClosed = [this] {
        const qint64 before = QFile(output_).size();
        QTest::qWait(200);
        return QFile(output_).size() == before;
    };
    EXPECT_TRUE(QTest::qWaitFor(isClosed)) << "the device is closed after the last sample";
}

TEST_F(SoundPlayerTest, TheDestructorWaitsForTheClickOnly) {
    SoundPlayer(SOUND_MODULE).PlayWave(Wave::Beep);
    EXPECT_NEAR(Length(Samples(output_)), 2039, 10);
    {
        SoundPlayer sounds(SOUND_MODULE);
        sounds.PlayWave(Wave::Vrl1);
        EXPECT_TRUE(QTest::qWaitFor([this] { return Samples(output_).size() > HalfSecond; }));
    }
    EXPECT_LT(Samples(output_).size(), 3 * HalfSecond);
}

TEST_F(SoundPlayerTest, ErrorsAreNotPrinted) {
    SilenceSoundServerLogs();
    qputenv("AUDIODEV", "no-such-card");
    qputenv("PULSE_RUNTIME_PATH", "/proc/none");  // where PulseAudio's client library cannot make its folder
    for (const char* driver : {"gramophone", "dummy", "pulseaudio", "alsa", ""}) {
        qputenv("SDL_AUDIODRIVER", driver);
        testing::internal::CaptureStderr();
        {
            SoundPlayer sounds(*driver == '\0' ? "/no/module" : SOUND_MODULE);
            sounds.PlayWave(Wave::Gun);
            QTest::qWait(300);  // a failed attempt emits no event
            sounds.PlayWave(Wave::Beep);
        }
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << driver;
    }
}

TEST_F(SoundPlayerTest, AFailedThreadStartIsTriedAgain) {
    SoundPlayer sounds(SOUND_MODULE);
    pthread_attr_t usual;
    pthread_attr_t huge;
    ASSERT_EQ(pthread_getattr_default_np(&usual) + pthread_getattr_default_np(&huge), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&huge, std::size_t{1} << 47),
              0);  // more than the address space
    ASSERT_EQ(pthread_setattr_default_np(&huge), 0);
    EXPECT_NO_THROW(sounds.PlayWave(Wave::Gun));
    ASSERT_EQ(pthread_setattr_default_np(&usual), 0);
    EXPECT_FALSE(QFile::exists(output_));
    sounds.PlayWave(Wave::Beep);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Samples(output_).empty(); }))
        << "once threads can be started again";
}

TEST_F(SoundPlayerTest, ADeviceThatHangsDoesNotBlock) {
    ASSERT_EQ(mkfifo(qPrintable(output_), 0600), 0);
    QElapsedTimer time;
    time.start();
    {
        SoundPlayer sounds(SOUND_MODULE);
        sounds.PlayWave(Wave::Gun);
        QTest::qWait(300);
        sounds.PlayWave(Wave::Beep);
    }
    EXPECT_LT(time.elapsed(), 3000);
    // Opening the other end of the pipe unblocks the device, which shows that it was blocked.
    pollfd reader{open(qPrintable(output_), O_RDONLY | O_NONBLOCK), POLLIN, 0};
    EXPECT_EQ(poll(&reader, 1, 5000), 1);
    for (char sample = 0; poll(&reader, 1, 5000) == 1 && read(reader.fd, &sample, 1) != 0;) {
    }
    close(reader.fd);
}

}  // namespace
}  // namespace vorlund
