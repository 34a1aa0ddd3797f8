#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTest>
#include <QtEndian>
#include <algorithm>

#include "tests/engine/seeded_random.h"
#include "tests/rules/small_worlds.h"
#include "tests/screens/hands.h"
#include "ui/machine/sound_player.h"

namespace vorlund {
namespace {

// Which recording is started where.

TEST(Recordings, TheMusicOnceAndAClickForEveryCommandOfTheTitle) {
    Sitting sitting;
    const SoundRecorder& recorded = sitting.Recorded();
    Click("frm1", "lblLoad");  // the timers of the hidden title go on
    EXPECT_EQ(sitting.Heard(), "Beep");
    EXPECT_TRUE(QTest::qWaitFor([&] { return recorded.Music == 1; }));
    Click("frmLoad", "lblGo(2)");
    QTest::qWait(300);
    EXPECT_EQ(recorded.Music, 1);
    EXPECT_EQ(sitting.Heard(), "Beep");
    EXPECT_TRUE(Ends([] { Click("frm1", "lblExit"); }));
    EXPECT_EQ(sitting.Heard(), "Beep Beep");
    Sitting left;
    Click("frm1", "lblPlay");
    const int before = left.Recorded().Music;
    QTest::qWait(300);
    EXPECT_EQ(left.Recorded().Music, before) << "the timers stop with the title";
    EXPECT_EQ(left.Heard(), "Beep");
}

// Numbers on the map in the moment in which a recording starts.
TEST(Recordings, GunfireAndExplosionBeforeTheMapIsRedrawn) {
    Sitting sitting;
    sitting.Resume(NewGame(3, "7 Anna 30/1; 8 Ben 8/0; 6 Ben 1/0; 36 Cleo 5/0; Anna HasNuke 1"));
    QStringList seen;
    sitting.Recorded().WhenPlayed = [&] {
        seen << Text("frm3", "lblCntry(6)") + ' ' + Text("frm3", "lblCntry(7)");
    };
    Type("a\t\t\t\t8\n");
    EXPECT_EQ(Text("frm3", "lblCntry(7)"), "4/0");
    Type("\na7\t8\t20\n");
    EXPECT_EQ(Text("frm3", "lblCntry(7)"), "20/0");
    EXPECT_EQ(seen.join(" | "), "30/1 8/0 | 30/1 4/0");
    EXPECT_EQ(sitting.Heard(), "Beep Explode Gun");
}

TEST(Recordings, NoneForRefusalsAndForWhatComputersDo) {
    Sitting sitting(std::make_unique<SeededRandom>(3));
    sitting.Resume(NewGame(3,
                           "7 Anna 1/0; 15 Anna 90/0; 8 Ben 99/0; 36 Cleo 5/0; Anna HasNuke 1; "
                           "Ben IsComputer 1 HasNuke 1"));
    sitting.Expect({"Warning: Enter a number for either troops or tanks."});
    Type("a7\t8\n");
    sitting.Expect({"Warning: The country number must be 1-42."});
    Type("\t\t\t43\n\033e");
    EXPECT_TRUE(ReportText().contains("was nuked") && ReportText().contains("Attack on Midwest USA"));
    EXPECT_EQ(sitting.Heard(), "Beep");
}

// What the player makes of them.

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

// How long the sound is without the silence behind it.
double Length(const std::vector<int>& samples) {
    return double(samples.rend() -
                  std::find_if(samples.rbegin(), samples.rend(), [](int x) { return x != 0; }));
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
        SoundPlayer sounds(SOUND_MODULE);
        sounds.PlayWave(wave);
        EXPECT_TRUE(QTest::qWaitFor([this, due = length] { return Samples(output_).size() > due; }, 10000));
        const std::vector<int> heard = Samples(output_);
        EXPECT_TRUE(Loudest(heard) > 16000 && Loudest(heard) < 32767) << Loudest(heard);
        EXPECT_NEAR(Length(heard), double(length), 10);
        QFile::remove(output_);
    }
}

TEST_F(SoundOnDisk, TheClickCutsOffTheMusic) {
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
    EXPECT_TRUE(QTest::qWaitFor(isClosed)) << "a silent game holds no device";
}

TEST_F(SoundOnDisk, TheEndLetsTheClickFinishAndCutsOffAnythingElse) {
    SoundPlayer(SOUND_MODULE).PlayWave(Wave::Beep);
    EXPECT_NEAR(Length(Samples(output_)), 2039, 10);
    {
        SoundPlayer sounds(SOUND_MODULE);
        sounds.PlayWave(Wave::Vrl1);
        EXPECT_TRUE(QTest::qWaitFor([this] { return Samples(output_).size() > HalfSecond; }));
    }
    EXPECT_LT(Samples(output_).size(), 3 * HalfSecond);
}

TEST_F(SoundOnDisk, NothingIsPrintedWhereNothingCanBePlayed) {
    QuietenSoundServers();
    qputenv("AUDIODEV", "no-such-card");
    qputenv("PULSE_RUNTIME_PATH", "/proc/none");  // a folder that the server's library fails to make
    for (const char* driver : {"gramophone", "dummy", "alsa", "pulseaudio", ""}) {
        qputenv("SDL_AUDIODRIVER", driver);
        testing::internal::CaptureStderr();
        {
            SoundPlayer sounds(*driver == '\0' ? "/no/module" : SOUND_MODULE);
            sounds.PlayWave(Wave::Gun);
            QTest::qWait(300);  // nothing shows that an attempt has failed
            sounds.PlayWave(Wave::Beep);
        }
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << driver;
    }
}

TEST_F(SoundOnDisk, WithoutAThreadTheGameIsSilent) {
    SoundPlayer sounds(SOUND_MODULE);
    pthread_attr_t usual;
    pthread_attr_t huge;
    ASSERT_EQ(pthread_getattr_default_np(&usual) + pthread_getattr_default_np(&huge), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&huge, std::size_t{1} << 47),
              0);  // a stack for which there is no room
    ASSERT_EQ(pthread_setattr_default_np(&huge), 0);
    EXPECT_NO_THROW(sounds.PlayWave(Wave::Gun));
    ASSERT_EQ(pthread_setattr_default_np(&usual), 0);
    EXPECT_FALSE(QFile::exists(output_));
    sounds.PlayWave(Wave::Beep);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Samples(output_).empty(); })) << "threads are back";
}

TEST_F(SoundOnDisk, ADeviceThatHangsDelaysNobody) {
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
    // Opening the other end lets the device go on, and shows that it was waiting.
    pollfd reader{open(qPrintable(output_), O_RDONLY | O_NONBLOCK), POLLIN, 0};
    EXPECT_EQ(poll(&reader, 1, 5000), 1);
    for (char sample = 0; poll(&reader, 1, 5000) == 1 && read(reader.fd, &sample, 1) != 0;) {
    }
    close(reader.fd);
}

}  // namespace
}  // namespace vorlund
