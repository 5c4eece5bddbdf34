// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The program killed at random moments, over and over in one folder, each start going on with what
// the kill before it left.

#include "platform/core/base.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"
#include "tests/support/long_run.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <algorithm>
#include <iostream>

using namespace zeph;
using namespace zeph::test;

namespace {

const int kills = repeats(12, 100);
/// From the first key on.
constexpr int latestKillMs = 900;
constexpr int startsWithinMs = 30000;
/// The program's time runs that much faster: its five seconds are half a one, its minute is 40 ms.
/// The disk's time does not.
constexpr int recoveryFactor = 10;
constexpr int autoSaveFactor = 1500;
constexpr int mostLostMs = 5000;
/// A timer that is due has had its turn when the driver's, which runs all the time, had some.
constexpr qsizetype turns = 3;

/// What the pilot plugin types, from its first key on.
QString letters(qsizetype count)
{
    QString result;
    for (qsizetype i = 0; i < count; ++i) {
        result += QChar(char16_t(u'a' + i % 26));
    }
    return result;
}

QByteArray fileBytes(const QString &text)
{
    return QString(text).replace(u'\n', u"\r\n"_s).toLatin1();
}

/// One of the two documents: what the last start showed, and what came on top of it since.
struct Text {
    QString control;
    QString file;
    QString shown{};
    QByteArray disk{};
    QByteArray backup{};
    /// Keys that were typed in front of what was shown; one may have gone in that nobody noted.
    qsizetype typed = 0;
    /// How many of them must not be lost.
    qsizetype kept = 0;
    /// When each came, in milliseconds of the run.
    QList<qint64> keyTimes{};

    /// How many of the keys stand in such a file; no value when it is none of this text's.
    std::optional<qsizetype> keysIn(const QByteArray &bytes) const
    {
        const QByteArray base = fileBytes(shown);
        const qsizetype keys = bytes.size() - base.size();
        const bool whole = keys >= 0 && bytes == letters(keys).toLatin1() + base;
        return whole ? std::optional(keys) : std::nullopt;
    }
};

/// What a run noted down before its end.
struct KilledRun {
    QStringList notes;
    QList<qint64> keys; ///< when each came, in milliseconds
    qsizetype done = 0; ///< keys that were typed when the last save was through

    explicit KilledRun(const QStringList &lines) : notes(lines)
    {
        for (const QString &line : notes) {
            const QStringList words = line.split(u' ');
            if (words[0] == u"key" && words.size() == 3) {
                keys.append(words[2].toLongLong());
            } else if (words[0] == u"done") {
                done = words[1].toLongLong();
            }
        }
    }

    QString textOf(const QString &control) const
    {
        const QString head = control + u'=';
        for (const QString &line : notes) {
            if (line.startsWith(head)) {
                return line.sliced(head.size()).replace(u"\\n"_s, u"\n"_s);
            }
        }
        return u"(not noted)"_s;
    }

    /// The keys that were older than the interval when the timers last had their turn.
    qsizetype olderThan(qint64 intervalMs) const
    {
        if (keys.size() < turns) {
            return 0;
        }
        const qint64 seen = keys[keys.size() - turns];
        return std::ranges::count_if(keys, [&](qint64 key) { return key + intervalMs <= seen; });
    }
};

class ProgramKills : public testing::Test
{
protected:
    ProgramKills()
    {
        const QByteArray given = qgetenv("ZEPH_KILL_SEED");
        m_seed = given.isEmpty() ? QRandomGenerator::global()->generate() : given.toUInt();
        m_random.seed(m_seed);
    }

    /// Kills the program while it runs with these settings and follows these steps.
    void killOverAndOver(const QByteArray &settings, const QStringList &before,
                         const QString &action = {})
    {
        m_before = before;
        m_action = action;
        // Side by side, so that the pilot can type into either.
        m_program.settle("TileFiles=1\r\n" + settings);
        QString base;
        for (int line = 0; line < 1000; ++line) {
            base += u"BTN S1 /I Radar_Mode /O Missile_Mode Rem %1\n"_s.arg(line);
        }
        begin(m_texts[0], base);
        begin(m_texts[1], u"Radar_Mode = r\nMissile_Mode = m\n"_s);
        for (int kill = 0; kill < kills && !HasFatalFailure(); ++kill) {
            SCOPED_TRACE("ZEPH_KILL_SEED=" + std::to_string(m_seed) + " kill "
                         + std::to_string(kill));
            killOnce(m_texts[size_t(m_random.bounded(2))]);
        }
        if (!HasFatalFailure()) {
            SCOPED_TRACE("ZEPH_KILL_SEED=" + std::to_string(m_seed) + " last start");
            endWell();
        }
        tell();
    }

    /// A row of the table that a long run is read for.
    void tell() const
    {
        std::cout << "kills " << kills << " | keys typed " << m_keys << " | lost at the end "
                  << m_lost << ", the oldest " << double(m_oldestLostMs) / 1000
                  << " s before the kill | texts taken back " << m_rescued
                  << " | files found saved anew " << m_savedAnew << std::endl;
    }
    int rescued() const { return m_rescued; }
    int savedAnew() const { return m_savedAnew; }
    QStringList backups() const
    {
        return QDir(m_program.file(u"Backup"_s)).entryList(QDir::Files, QDir::Name);
    }

private:
    void begin(Text &text, const QString &base)
    {
        text.shown = base;
        text.disk = fileBytes(base);
        m_program.write(text.file, text.disk);
    }

    /// The steps of a start: takes back what is offered, and notes what the Editor then shows.
    QStringList startSteps() const
    {
        QStringList steps;
        for (const Text &text : m_texts) {
            if (isOffered(text)) {
                steps += { u"modal"_s, u"press Yes"_s };
            }
        }
        steps += steps.isEmpty() ? u"text Panel_1 Ready"_s : u"gone Look what I found"_s;
        for (const Text &text : m_texts) {
            steps += u"note "_s + text.control;
        }
        return steps;
    }

    /// A recovery file whose text the document's own file holds as well is no news.
    bool isOffered(const Text &text) const
    {
        const QString name = text.control == u"JoystickText" ? u"joystick.txt"_s : u"macro.txt"_s;
        QDirIterator each(m_program.file(u"Recovery"_s), { name }, QDir::Files,
                          QDirIterator::Subdirectories);
        if (!each.hasNext()) {
            return false;
        }
        QFile file(each.next());
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        const QByteArray bytes = file.readAll();
        const qsizetype text1st = bytes.indexOf("\n\n") + 2;
        return fileBytes(QString::fromUtf8(bytes.sliced(text1st))) != text.disk;
    }

    void killOnce(Text &typedInto)
    {
        const QString log = u"kill.log"_s;
        QFile::remove(m_program.file(log));
        QStringList steps = startSteps() + m_before;
        steps += u"hasten RecoveryTimer %1"_s.arg(recoveryFactor);
        steps += u"pilot "_s + typedInto.control + u' ' + m_action;
        const auto process = m_program.start(steps, log, { m_program.file(m_texts[0].file) });
        QElapsedTimer waited;
        waited.start();
        while (!m_program.exists(log) || !m_program.read(log).contains("\nkey 1 ")) {
            ASSERT_FALSE(process->waitForFinished(5) || waited.elapsed() > startsWithinMs)
                << m_program.noted(log).join(u'\n').toStdString();
        }
        ASSERT_FALSE(process->waitForFinished(int(m_random.bounded(latestKillMs))))
            << m_program.noted(log).join(u'\n').toStdString();
        process->kill();
        process->waitForFinished();

        const KilledRun run(m_program.noted(log));
        takeShown(run);
        if (HasFatalFailure()) {
            return;
        }
        const auto asWritten =
            run.notes.filter(QRegularExpression(u"^timer RecoveryTimer (\\d+) precise$"_s));
        ASSERT_EQ(asWritten.size(), 1);
        const int interval = asWritten[0].split(u' ')[2].toInt();
        ASSERT_LT(interval, mostLostMs);
        typedInto.typed = run.keys.size() + 1;
        typedInto.keyTimes = run.keys;
        typedInto.kept = std::max(run.done, run.olderThan(mostLostMs / recoveryFactor));
        for (Text &text : m_texts) {
            lookAtDisk(text, run.done > 0, &text == &typedInto ? run.done : 0);
        }
    }

    /// What a start shows, after the kill before it, goes on from there.
    void takeShown(const KilledRun &run)
    {
        for (Text &text : m_texts) {
            const QString now = run.textOf(text.control);
            const auto keys = text.keysIn(fileBytes(now));
            ASSERT_TRUE(keys) << now.left(200).toStdString();
            ASSERT_GE(*keys, text.kept) << "of " << text.typed << " keys typed";
            ASSERT_LE(*keys, text.typed);
            m_rescued += *keys > 0 && fileBytes(now) != text.disk ? 1 : 0;
            count(text, *keys);
            text.shown = now;
            text.typed = 0;
            text.keyTimes.clear();
            text.kept = 0;
        }
    }

    /// How old the first lost key was when the last one came, in the program's time.
    void count(const Text &text, qsizetype keysKept)
    {
        const QList<qint64> &times = text.keyTimes;
        m_keys += times.size();
        if (keysKept < times.size()) {
            m_lost += times.size() - keysKept;
            m_oldestLostMs =
                std::max(m_oldestLostMs, (times.last() - times[keysKept]) * recoveryFactor);
        }
    }

    /// The file is wholly the old or the new one; the old one only where no save went through.
    void lookAtDisk(Text &text, bool saved, qsizetype keysSaved)
    {
        const QByteArray now = m_program.read(text.file);
        const auto keys = text.keysIn(now);
        ASSERT_TRUE(keys || (now == text.disk && !saved)) << now.left(200).toStdString();
        if (keys) {
            ASSERT_GE(*keys, keysSaved);
            ASSERT_LE(*keys, text.typed);
            text.kept = std::max(text.kept, *keys);
        }
        m_savedAnew += now != text.disk ? 1 : 0;
        text.disk = now;

        const QString backup = u"Backup/"_s + QFileInfo(text.file).fileName();
        if (m_program.exists(backup)) {
            const QByteArray copy = m_program.read(backup);
            const auto copied = text.keysIn(copy);
            ASSERT_TRUE(copied || copy == text.backup) << copy.left(200).toStdString();
            ASSERT_TRUE(!copied || (keys && *copied <= *keys)) << "a backup of what was not saved";
            text.backup = copy;
        }
    }

    /// A last run saves both texts and ends as a pilot ends it.
    void endWell()
    {
        ageLocks();
        const QStringList notes =
            m_program.run(startSteps() + QStringList{ u"trigger mnuFileSaveBoth"_s, u"close"_s },
                          { m_program.file(m_texts[0].file) });
        takeShown(KilledRun(notes));
        for (const Text &text : m_texts) {
            EXPECT_EQ(m_program.read(text.file), fileBytes(text.shown));
        }
        EXPECT_THAT(lines(leftInRecovery()), testing::IsEmpty());
    }

    /// The pilot comes back a minute later: a lock without a name, from a kill just between the
    /// two, is no starting program's by then.
    void ageLocks() const
    {
        QDirIterator each(m_program.file(u"Recovery"_s), { u"Zeph.lock"_s }, QDir::Files,
                          QDirIterator::Subdirectories);
        while (each.hasNext()) {
            QFile lock(each.next());
            ASSERT_TRUE(lock.open(QFile::ReadWrite));
            ASSERT_TRUE(lock.setFileTime(QDateTime::currentDateTime().addSecs(-60),
                                         QFileDevice::FileModificationTime));
        }
    }

    /// Every file and folder, whatever holds the folder in place.
    QStringList leftInRecovery() const
    {
        QStringList left;
        QDirIterator each(m_program.file(u"Recovery"_s),
                          QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
        while (each.hasNext()) {
            const QFileInfo entry(each.next());
            QFile file(entry.filePath());
            const bool isRead = entry.isFile() && file.open(QFile::ReadOnly);
            left += entry.filePath() + u" of "_s + entry.lastModified().toString(Qt::ISODateWithMs)
                + u": "_s + (isRead ? QString::fromUtf8(file.read(200)) : QString());
        }
        if (left.isEmpty() && m_program.exists(u"Recovery"_s)) {
            left += u"the bare folder"_s;
        }
        return left;
    }

    Program m_program;
    quint32 m_seed = 0;
    QRandomGenerator m_random;
    QStringList m_before;
    QString m_action;
    std::array<Text, 2> m_texts{ Text{ u"JoystickText"_s, u"Files/a.tmj"_s },
                                 Text{ u"MacroText"_s, u"Files/a.tmm"_s } };
    int m_rescued = 0;
    int m_savedAnew = 0;
    qsizetype m_keys = 0;
    qsizetype m_lost = 0;
    qint64 m_oldestLostMs = 0;
};

const QString saveEachThirdKey = u"mnuFileSaveBoth 3"_s;

} // namespace

TEST_F(ProgramKills, DuringTypingTheNextStartOffersAllButTheLastFiveSeconds)
{
    killOverAndOver("CreateBackup=0\r\n", {});
    EXPECT_GT(rescued(), kills / 4) << "the kills came too early";
    EXPECT_EQ(savedAnew(), 0);
}

TEST_F(ProgramKills, DuringAutosavesTheFilesAreWholeAndNoFiveSecondsAreLost)
{
    killOverAndOver("CreateBackup=0\r\nAutoSaveEnabled=1\r\nAutoSaveTime=1\r\n",
                    { u"trigger mnuFileSaveBoth"_s, u"hasten Timer1 %1"_s.arg(autoSaveFactor) });
    EXPECT_GT(savedAnew(), kills / 4) << "the kills came too early";
}

TEST_F(ProgramKills, DuringBackupsFilesAndBackupsAreWhole)
{
    killOverAndOver("CreateBackup=1\r\n", {}, saveEachThirdKey);
    EXPECT_GT(savedAnew(), kills / 4) << "the kills came too early";
    EXPECT_THAT(lines(backups()), testing::IsSupersetOf({ "a.tmj", "a.tmm" }));
}

TEST_F(ProgramKills, DuringSavesEachFileIsWhollyTheOldOrTheNewOne)
{
    killOverAndOver("CreateBackup=0\r\n", {}, saveEachThirdKey);
    EXPECT_GT(savedAnew(), kills / 4) << "the kills came too early";
}
