#include "tests/reliability/Seed.h"
#include "tests/reliability/WorkedShop.h"
#include "tests/shop/ShopCommand.h"
#include "tests/support/Suite.h"

#include <QProcess>
#include <QRegularExpression>
#include <QThread>

#include <random>

using namespace Qt::StringLiterals;

/// The programs killed at any moment, and the disk refusing any write: what was said to be done is there, and nothing
/// is there by half.
class FaultTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { m_chance.seed(campaignSeed()); }

    void killedAtWork()
    {
        WorkedShop shop;
        for (int kill = 0; kill < 140; ++kill) {
            shop.take(runAndKill(QStringLiteral(ZELVANTOR_WORKER), shop.arguments(unsigned(m_chance()), 1000), 120000));
            shop.verify();
            if (QTest::currentTestFailed())
                return;
        }
        QProcess last;
        last.start(QStringLiteral(ZELVANTOR_WORKER), shop.arguments(unsigned(m_chance()), 60));
        QVERIFY(last.waitForFinished());
        shop.take(last.readAllStandardOutput());
        QCOMPARE(last.readAllStandardError(), QByteArray());
        shop.verify();
        QCOMPARE(shop.strangers(), QStringList());
    }

    void killedWhileGenerating()
    {
        const ShopCommand shop;
        QCOMPARE(shop.start(shop.folders()).status, 0);
        const auto whole = Files::tree(shop.output());
        for (int kill = 0; kill < 60; ++kill) {
            if (kill % 2 == 0)
                QVERIFY(QDir(shop.output()).removeRecursively());
            runAndKill(QStringLiteral(ZELVANTOR_SHOP), shop.folders(), 30000);
            const auto files = Files::tree(shop.output());
            for (auto file = files.begin(); file != files.end(); ++file)
                if (!file.key().contains(u".zelvantor-part-"_s))
                    QVERIFY2(file.value() == whole.value(file.key()), qPrintable(file.key()));
        }
        QCOMPARE(shop.start(shop.folders()).status, 0);
        QVERIFY(Files::tree(shop.output()) == whole);
    }

    void refusedWritesAtWork()
    {
        constexpr unsigned seed = 7;
        constexpr int steps = 40;
        WorkedShop shop;
        const QString worker = QStringLiteral(ZELVANTOR_WORKER);
        const std::vector<Call> calls = keepingCalls(worker, shop.arguments(seed, steps));
        QCOMPARE(calls.size(), size_t(200));
        for (const Call &call : calls) {
            const Starved run = starve(worker, shop.arguments(seed, steps), call);
            QVERIFY2(run.status == 0 || run.status == 1, run.err.constData());
            shop.take(run.out);
            shop.verify();
            if (QTest::currentTestFailed()) {
                qInfo("%s %d: %s", qPrintable(call.name), call.number, run.err.constData());
                return;
            }
        }
    }

    void refusedWritesWhileGenerating()
    {
        const ShopCommand shop;
        const QString generator = QStringLiteral(ZELVANTOR_SHOP);
        const std::vector<Call> calls = keepingCalls(generator, shop.folders());
        const auto whole = Files::tree(shop.output());
        for (const Call &call : calls) {
            QVERIFY(QDir(shop.output()).removeRecursively());
            const Starved run = starve(generator, shop.folders(), call);
            const QByteArray place = call.name.toLatin1() + QByteArray::number(call.number) + run.err;
            QVERIFY2(run.status >= 0 && run.status <= 2, place.constData());
            if (run.status == 0)
                QVERIFY2(Files::tree(shop.output()) == whole, place.constData());
            else
                QVERIFY2(!run.err.isEmpty(), place.constData());
        }
        QVERIFY(calls.size() > 20);
    }

private:
    /// Starts a program and ends it by force after a random time up to the given one.
    QByteArray runAndKill(const QString &program, const QStringList &arguments, int longestMicroseconds)
    {
        QProcess process;
        process.start(program, arguments);
        if (!process.waitForStarted())
            qFatal("%s does not start", qPrintable(program));
        QThread::usleep(m_chance() % unsigned(longestMicroseconds));
        process.kill();
        process.waitForFinished();
        return process.readAllStandardOutput();
    }
    struct Call {
        QString name;
        int number; ///< among the calls of its name
    };
    struct Starved {
        int status = -1; ///< -1 after a crash
        QByteArray out;
        QByteArray err;
    };
    /// The first 200 calls by which a program writes or syncs what it keeps; what it says does not count.
    std::vector<Call> keepingCalls(const QString &program, const QStringList &arguments)
    {
        trace(program, arguments, {});
        static const QRegularExpression line(u"^\\d+ +(\\w+)\\((\\d+)"_s);
        std::vector<Call> calls;
        QMap<QString, int> numbers;
        for (const QString &text : QString::fromLatin1(Files::read(callsFile())).split(u'\n')) {
            const QRegularExpressionMatch match = line.match(text);
            if (!match.hasMatch())
                continue;
            const int number = ++numbers[match.captured(1)];
            if (match.captured(2).toInt() > 2 && calls.size() < 200)
                calls.push_back({match.captured(1), number});
        }
        return calls;
    }
    /// Runs a program with one call failing as on a full disk.
    Starved starve(const QString &program, const QStringList &arguments, const Call &call)
    {
        return trace(program, arguments,
                     {u"-e"_s, u"inject=%1:error=ENOSPC:when=%2"_s.arg(call.name).arg(call.number)});
    }

    Starved trace(const QString &program, const QStringList &arguments, const QStringList &injection)
    {
        QProcess process;
        process.start(QStringLiteral(ZELVANTOR_STRACE),
                      QStringList{u"-f"_s, u"-qq"_s, u"--seccomp-bpf"_s, u"-o"_s, callsFile(), u"-e"_s,
                                  u"trace=write,pwrite64,fsync,fdatasync,ftruncate"_s}
                          + injection + QStringList(program) + arguments);
        Starved run;
        if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit)
            run.status = process.exitCode();
        run.out = process.readAllStandardOutput();
        run.err = process.readAllStandardError();
        return run;
    }
    QString callsFile() const { return m_place.filePath(QStringLiteral("calls")); }

    std::mt19937 m_chance;
    QTemporaryDir m_place;
};

ZELVANTOR_SUITE(FaultTest)
#include "FaultTest.moc"
