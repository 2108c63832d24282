// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "waveformstore.h"

#include "generatorfixture.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <limits>

#include <sys/stat.h>
#include <unistd.h>

class TestWaveformStore : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void loadedCountsAreTheFiles();
    void names_data();
    void names();
    void linksInsideTheFolder();
    void folderThatIsItselfALink();
    void brokenFiles_data();
    void brokenFiles();
    void everyTruncationIsRefused();
    void levels_data();
    void levels();
    void largestWaveform();
    void failureKeepsTheEarlierWaveform();
    void reloadFreesTheEarlierWaveform();
    void reloadNeedsRoomBesideTheEarlierWaveform();
    void memoryIsCompactedWhenNeeded();
    void memoryRunsOut();
    void identifiersRunOut();
    void removeAndClear();
    void manyReloads();

private:
    StoreError load(int slot, const char* name);
    void put(const char* name, const QVector<qint16>& samples);
    QString path(const char* name) const { return m_pRoom->filePath(QLatin1String(name)); }

    std::unique_ptr<QTemporaryDir> m_pRoom;
    std::unique_ptr<WaveformStore> m_pStore;
    WaveformLevels m_levels;
};

namespace {

const GeneratorLimits Limits = generatorLimits(QStringLiteral("KVX7010X"));

} // namespace

// The room holds the user-data folder "data" and what must stay out of reach beside it.
void TestWaveformStore::init()
{
    m_pRoom = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_pRoom->path()).mkpath(QStringLiteral("data/sub")));
    m_pStore = std::make_unique<WaveformStore>(path("data"), Limits, 1000);
    m_levels = {77, 88};
}

void TestWaveformStore::cleanup()
{
    m_pStore.reset();
    m_pRoom.reset();
}

StoreError TestWaveformStore::load(int slot, const char* name)
{
    return m_pStore->load(slot, QString::fromUtf8(name), m_levels);
}

void TestWaveformStore::put(const char* name, const QVector<qint16>& samples)
{
    writeBytes(path("data/") + QLatin1String(name), waveformBytes(samples, 2.5, 0.25));
}

void TestWaveformStore::loadedCountsAreTheFiles()
{
    const QVector<qint16> samples = {0, 1, -1, 32764, -32764, 32767, -32768};
    put("run.mpwv", samples);
    QVERIFY(!m_pStore->holds(1));
    QCOMPARE(load(1, "M:/run.mpwv").number, 0);
    QVERIFY(m_pStore->holds(1));
    QCOMPARE(m_pStore->counts(1), samples);
    QCOMPARE(m_levels.amplitude, 2.5);
    QCOMPARE(m_levels.offset, 0.25);
    QCOMPARE(m_pStore->freeSamples(), 993u);
    QVERIFY(m_pStore->counts(2).isEmpty());
}

void TestWaveformStore::names_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("error");

    const auto row = [](const char* name, int error) {
        QTest::newRow(name) << QByteArray(name) << error;
    };
    row("M:/run.mpwv", 0);
    row("M:/sub/deep.mpwv", 0);
    row("M:/\xC3\xA4 b.mpwv", 0);
    row("M:/none.mpwv", -256);
    row("M:/sub/none.mpwv", -256);
    row("M:/none/deep.mpwv", -256);
    row("M:/run.mpwv/more", -256);
    row("M:/dangling", -256);
    row("", -257);
    row("M:", -257);
    row("M:/", -257);
    row("run.mpwv", -257);
    row("/run.mpwv", -257);
    row("m:/run.mpwv", -257);
    row("C:/run.mpwv", -257);
    row("M:\\run.mpwv", -257);
    row("M:run.mpwv", -257);
    row(" M:/run.mpwv", -257);
    row("M://run.mpwv", -257);
    row("M:/./run.mpwv", -257);
    row("M:/run.mpwv/", -257);
    row("M:/..", -257);
    row("M:/../outside.mpwv", -257);
    row("M:/sub/../run.mpwv", -257);
    row("M:/sub/../../outside.mpwv", -257);
    row("M:/sub", -257);
    row("M:/linkout.mpwv", -257);
    row("M:/folderout/outside.mpwv", -257);
    row("M:/absolute.mpwv", -257);
    row("M:/pipe", -257);
    row("M:/run.mpwv\n", -257);
    QTest::newRow("zero byte") << QByteArray("M:/run.mpwv\0x", 13) << -257;
    QTest::newRow("very long") << "M:/" + QByteArray(100000, 'x') << -256;
    QTest::newRow("very deep") << "M:" + QByteArray("/x").repeated(10000) << -256;
    QTest::newRow("not UTF-8") << QByteArray("M:/\xFF\xFE") << -256;
}

void TestWaveformStore::names()
{
    QFETCH(QByteArray, name);
    QFETCH(int, error);
    put("run.mpwv", ramp(5));
    put("sub/deep.mpwv", ramp(5));
    writeBytes(path("data/") + QString::fromUtf8("\xC3\xA4 b.mpwv"),
               waveformBytes(ramp(5), 2.5, 0.25));
    writeBytes(path("outside.mpwv"), waveformBytes(ramp(5), 2.5, 0.25));
    QVERIFY(QFile::link(QStringLiteral("../outside.mpwv"), path("data/linkout.mpwv")));
    QVERIFY(QFile::link(path("outside.mpwv"), path("data/absolute.mpwv")));
    QVERIFY(QFile::link(QStringLiteral(".."), path("data/folderout")));
    QVERIFY(QFile::link(QStringLiteral("nowhere"), path("data/dangling")));
    QCOMPARE(mkfifo(qPrintable(path("data/pipe")), 0600), 0);

    const StoreError result =
        m_pStore->load(3, QString::fromUtf8(name.constData(), name.size()), m_levels);
    QCOMPARE(result.number, error);
    QCOMPARE(m_pStore->holds(3), error == 0);
    QVERIFY(result.detail.size() < 250);
    QVERIFY(!result.detail.contains('"') && !result.detail.contains('\n'));
    if (error != 0) {
        QCOMPARE(m_levels.amplitude, 77.0);
        QCOMPARE(m_pStore->freeSamples(), 1000u);
    }
}

void TestWaveformStore::linksInsideTheFolder()
{
    put("sub/deep.mpwv", ramp(5));
    QVERIFY(QFile::link(QStringLiteral("sub/deep.mpwv"), path("data/link.mpwv")));
    QCOMPARE(load(1, "M:/link.mpwv").number, 0);
    QCOMPARE(m_pStore->counts(1), ramp(5));

    // A neighbour whose name begins with the folder's is not inside it.
    QVERIFY(QDir(m_pRoom->path()).mkpath(QStringLiteral("data2")));
    writeBytes(path("data2/x.mpwv"), waveformBytes(ramp(5), 2.5, 0));
    QVERIFY(QFile::link(QStringLiteral("../data2/x.mpwv"), path("data/near.mpwv")));
    QCOMPARE(load(1, "M:/near.mpwv").number, -257);
}

void TestWaveformStore::folderThatIsItselfALink()
{
    put("run.mpwv", ramp(5));
    QVERIFY(QFile::link(QStringLiteral("data"), path("alias")));
    WaveformStore store(path("alias"), Limits, 10);
    QCOMPARE(store.load(1, QStringLiteral("M:/run.mpwv"), m_levels).number, 0);

    WaveformStore early(path("later"), Limits, 10);
    QCOMPARE(early.load(1, QStringLiteral("M:/run.mpwv"), m_levels).number, -256);
    QVERIFY(QFile::rename(path("data"), path("later")));
    QCOMPARE(early.load(1, QStringLiteral("M:/run.mpwv"), m_levels).number, 0);
}

namespace {

using Damage = std::function<void(QByteArray&)>;

Damage patch(int offset, const QByteArray& bytes)
{
    return [offset, bytes](QByteArray& file) { file.replace(offset, bytes.size(), bytes); };
}

template<typename Number>
QByteArray littleEndian(Number number)
{
    return QByteArray(reinterpret_cast<const char*>(&number), sizeof number);
}

Damage resize(int size)
{
    return [size](QByteArray& file) { file = file.leftJustified(size, '\0', true); };
}

Damage points(quint32 count, int size)
{
    return [count, size](QByteArray& file) {
        patch(20, littleEndian(count))(file);
        resize(size)(file);
    };
}

} // namespace

Q_DECLARE_METATYPE(Damage)

void TestWaveformStore::brokenFiles_data()
{
    QTest::addColumn<Damage>("damage");
    QTest::addColumn<QByteArray>("detail");

    const auto row = [](const char* name, const Damage& damage, const char* detail) {
        QTest::newRow(name) << damage << QByteArray(detail);
    };
    const double nan = qQNaN();
    const double infinity = std::numeric_limits<double>::infinity();
    row("empty", resize(0), "size");
    row("header cut", resize(511), "size");
    row("samples cut", resize(512 + 2 * 10 - 1), "size");
    row("longer", resize(512 + 2 * 10 + 1), "size");
    row("magic", patch(8, "k"), "magic");
    row("magic goes on", patch(9, "X"), "magic");
    row("version", patch(16, littleEndian<quint32>(20050115)), "version");
    row("one point fewer", points(9, 532), "size");
    row("one point more", points(11, 532), "size");
    row("no points", points(0, 512), "points");
    row("no points, samples", points(0, 532), "size");
    row("one point above the most", points(1048577, 512 + 2 * 1048577), "size");
    row("size wraps in 32 bits", points(0x80000000u, 512), "points");
    row("hostile count", points(0xFFFFFFFFu, 532), "points");
    row("amplitude NaN", patch(440, littleEndian(nan)), "ampValue");
    row("offset NaN", patch(448, littleEndian(nan)), "offsetValue");
    row("amplitude infinite", patch(440, littleEndian(infinity)), "ampValue");
    row("offset infinite", patch(448, littleEndian(-infinity)), "offsetValue");
    row(
        "text", [](QByteArray& file) { file = QByteArray("{}\n").repeated(400); }, "magic");
}

void TestWaveformStore::brokenFiles()
{
    QFETCH(Damage, damage);
    QFETCH(QByteArray, detail);

    QByteArray bytes = waveformBytes(ramp(10), 2.5, 0.25);
    damage(bytes);
    writeBytes(path("data/run.mpwv"), bytes);
    const StoreError result = load(1, "M:/run.mpwv");
    QCOMPARE(result.number, -250);
    QVERIFY2(result.detail.startsWith(detail), result.detail.constData());
    QVERIFY(!m_pStore->holds(1));
    QCOMPARE(m_pStore->freeSamples(), 1000u);
}

void TestWaveformStore::everyTruncationIsRefused()
{
    const QByteArray bytes = waveformBytes(ramp(8), 2.5, 0.25);
    for (int size = 0; size < bytes.size(); ++size) {
        writeBytes(path("data/run.mpwv"), bytes.left(size));
        QCOMPARE(load(1, "M:/run.mpwv").number, -250);
    }
    writeBytes(path("data/run.mpwv"), bytes);
    QCOMPARE(load(1, "M:/run.mpwv").number, 0);
}

void TestWaveformStore::levels_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<double>("amplitude");
    QTest::addColumn<double>("offset");
    QTest::addColumn<int>("error");

    for (const char* fast : {"KVX705XX", "KVX7040X"}) {
        const QString family = QLatin1String(fast);
        QTest::addRow("%s, largest", fast) << family << 5.0 << 0.0 << 0;
        QTest::addRow("%s, too large", fast) << family << 5.01 << 0.0 << -222;
        QTest::addRow("%s, too high", fast) << family << 2.0 << 1.51 << -222;
    }
    for (const char* slow : {"KVX7030X", "KVX7020X", "KVX7010X"}) {
        const QString family = QLatin1String(slow);
        QTest::addRow("%s, largest", slow) << family << 10.0 << 0.0 << 0;
        QTest::addRow("%s, too large", slow) << family << 10.01 << 0.0 << -222;
        QTest::addRow("%s, too low", slow) << family << 2.0 << -4.01 << -222;
    }
    QTest::newRow("constant") << QStringLiteral("KVX7010X") << 0.0 << 1.0 << 0;
    QTest::newRow("negative amplitude") << QStringLiteral("KVX7010X") << -2.5 << 0.0 << -222;
    QTest::newRow("huge") << QStringLiteral("KVX7010X") << 1e308 << 1e308 << -222;
}

void TestWaveformStore::levels()
{
    QFETCH(QString, family);
    QFETCH(double, amplitude);
    QFETCH(double, offset);
    WaveformStore store(path("data"), generatorLimits(family), 100);
    writeBytes(path("data/run.mpwv"), waveformBytes(ramp(10), amplitude, offset));
    QTEST(store.load(1, QStringLiteral("M:/run.mpwv"), m_levels).number, "error");
}

void TestWaveformStore::largestWaveform()
{
    QVector<qint16> samples(1048576);
    for (int i = 0; i < samples.size(); ++i)
        samples[i] = qint16(i * 31 % 65536 - 32768);
    put("run.mpwv", samples);

    WaveformStore store(path("data"), Limits);
    for (int slot : {1, 2, 1, 2, 2, 1}) {
        QCOMPARE(store.load(slot, QStringLiteral("M:/run.mpwv"), m_levels).number, 0);
        QCOMPARE(store.counts(slot), samples);
    }
    QCOMPARE(store.freeSamples(), 1048576u);
}

void TestWaveformStore::failureKeepsTheEarlierWaveform()
{
    put("run.mpwv", ramp(10));
    QCOMPARE(load(1, "M:/run.mpwv").number, 0);
    writeBytes(path("data/run.mpwv"), "rubbish");
    QCOMPARE(load(1, "M:/run.mpwv").number, -250);
    QCOMPARE(load(1, "M:/none.mpwv").number, -256);
    put("run.mpwv", ramp(991));
    QCOMPARE(load(1, "M:/run.mpwv").number, -225);
    QCOMPARE(m_pStore->counts(1), ramp(10));
    QCOMPARE(m_pStore->freeSamples(), 990u);
}

void TestWaveformStore::reloadFreesTheEarlierWaveform()
{
    put("run.mpwv", ramp(400));
    QCOMPARE(load(1, "M:/run.mpwv").number, 0);
    put("run.mpwv", ramp(500, 7));
    QCOMPARE(load(1, "M:/run.mpwv").number, 0);
    QCOMPARE(m_pStore->counts(1), ramp(500, 7));
    QCOMPARE(m_pStore->freeSamples(), 500u);
}

void TestWaveformStore::reloadNeedsRoomBesideTheEarlierWaveform()
{
    put("run.mpwv", ramp(501));
    QCOMPARE(load(1, "M:/run.mpwv").number, 0);
    const StoreError result = load(1, "M:/run.mpwv");
    QCOMPARE(result.number, -225);
    QCOMPARE(result.detail, QByteArray("501 samples, 499 are free"));
    m_pStore->remove(1);
    QCOMPARE(load(1, "M:/run.mpwv").number, 0);
}

// 300 + 300 free samples lie on both sides of the 400 that are used; only in one stretch do they
// hold 600.
void TestWaveformStore::memoryIsCompactedWhenNeeded()
{
    put("a.mpwv", ramp(300, 1000));
    put("b.mpwv", ramp(400, 2000));
    put("c.mpwv", ramp(600, 3000));
    QCOMPARE(load(1, "M:/a.mpwv").number, 0);
    QCOMPARE(load(2, "M:/b.mpwv").number, 0);
    m_pStore->remove(1);
    QCOMPARE(load(3, "M:/c.mpwv").number, 0);
    QCOMPARE(m_pStore->counts(2), ramp(400, 2000));
    QCOMPARE(m_pStore->counts(3), ramp(600, 3000));
    QCOMPARE(m_pStore->freeSamples(), 0u);
}

void TestWaveformStore::memoryRunsOut()
{
    put("a.mpwv", ramp(600));
    put("b.mpwv", ramp(401));
    put("big.mpwv", ramp(1001));
    QCOMPARE(load(1, "M:/a.mpwv").number, 0);
    QCOMPARE(load(2, "M:/b.mpwv").number, -225);
    QCOMPARE(load(2, "M:/big.mpwv").number, -225);
    QVERIFY(!m_pStore->holds(2));
    QCOMPARE(m_pStore->counts(1), ramp(600));
}

void TestWaveformStore::identifiersRunOut()
{
    put("a.mpwv", ramp(1));
    for (int slot = 0; slot < 16; ++slot)
        QCOMPARE(load(slot, "M:/a.mpwv").number, 0);
    QCOMPARE(load(16, "M:/a.mpwv").number, -225);
    m_pStore->remove(5);
    QCOMPARE(load(16, "M:/a.mpwv").number, 0);
}

void TestWaveformStore::removeAndClear()
{
    put("a.mpwv", ramp(10));
    QCOMPARE(load(1, "M:/a.mpwv").number, 0);
    QCOMPARE(load(2, "M:/a.mpwv").number, 0);
    m_pStore->remove(7);
    QCOMPARE(m_pStore->freeSamples(), 980u);
    m_pStore->remove(1);
    QVERIFY(!m_pStore->holds(1));
    QCOMPARE(m_pStore->freeSamples(), 990u);
    m_pStore->clear();
    QVERIFY(!m_pStore->holds(2));
    QVERIFY(m_pStore->counts(2).isEmpty());
    QCOMPARE(m_pStore->freeSamples(), 1000u);
}

// Loads of changing sizes into three slots: each slot always holds what was loaded into it last,
// and no sample of the memory is ever lost.
void TestWaveformStore::manyReloads()
{
    QVector<QVector<qint16>> held(3);
    int refused = 0;
    for (int round = 0; round < 600; ++round) {
        const int slot = round * 7 % 3;
        const QVector<qint16> samples = ramp(1 + round * 131 % 420, round);
        put("x.mpwv", samples);
        const int error = load(slot, "M:/x.mpwv").number;
        if (error == 0)
            held[slot] = samples;
        else
            ++refused;

        int used = 0;
        for (int i = 0; i < held.size(); ++i) {
            QCOMPARE(m_pStore->counts(i), held.at(i));
            used += held.at(i).size();
        }
        QCOMPARE(int(m_pStore->freeSamples()), 1000 - used);
        const bool hadRoom = error == 0 || used + samples.size() > 1000;
        QVERIFY(hadRoom);
    }
    QVERIFY(refused > 0 && refused < 500);
}

QTEST_APPLESS_MAIN(TestWaveformStore)
#include "test_waveformstore.moc"
