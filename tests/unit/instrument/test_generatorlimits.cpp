// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "generatorlimits.h"

#include "devicetable.h"

#include <QTest>

#include <limits>

class TestGeneratorLimits : public QObject
{
    Q_OBJECT

private slots:
    void families_data();
    void families();
    void modelTextNamesItsFamily();
    void levels_data();
    void levels();
};

void TestGeneratorLimits::families_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<double>("amplitude");
    QTest::addColumn<double>("level");
    QTest::addColumn<double>("frequency");

    const auto row = [](const char* family, const char* model, double amplitude, double level,
                        double frequency) {
        QTest::newRow(family) << QString::fromLatin1(family) << QByteArray(model) << amplitude
                              << level << frequency;
    };
    row("KVX705XX", "KVX70501", 5, 2.5, 1e9);
    row("KVX7040X", "KVX70402", 5, 2.5, 1e9);
    row("KVX7030X", "KVX70302", 10, 5, 5e8);
    row("KVX7020X", "KVX70202", 10, 5, 5e8);
    row("KVX7010X", "KVX70102", 10, 5, 125e6);
    row("KVX70302", "KVX70302", 10, 5, 5e8);
    row("something else", "KVX70102", 10, 5, 125e6);
    row("", "KVX70102", 10, 5, 125e6);
}

void TestGeneratorLimits::families()
{
    QFETCH(QString, family);
    QFETCH(QByteArray, model);
    QFETCH(double, amplitude);
    QFETCH(double, level);
    QFETCH(double, frequency);

    const GeneratorLimits limits = generatorLimits(family);
    QCOMPARE(limits.modelText, model);
    QCOMPARE(limits.maxAmplitude, amplitude);
    QCOMPARE(limits.minAmplitude, 0.001);
    QCOMPARE(limits.levelPlus, level);
    QCOMPARE(limits.levelMinus, -level);
    QCOMPARE(limits.maxFrequency(), frequency);
    QCOMPARE(limits.waveformLength, 1048576u);
}

void TestGeneratorLimits::modelTextNamesItsFamily()
{
    const QVector<QStringList> families = deviceFamilies();
    QCOMPARE(families.size(), 5);
    for (int row = 0; row < families.size(); ++row) {
        const QByteArray model = generatorLimits(families.at(row).at(DeviceName)).modelText;
        QCOMPARE(model.size(), 8);
        QCOMPARE(deviceRowIndex(model), row);
    }
}

void TestGeneratorLimits::levels_data()
{
    QTest::addColumn<double>("amplitude");
    QTest::addColumn<double>("offset");
    QTest::addColumn<bool>("playable");

    const double nan = qQNaN();
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("default") << 2.5 << 0.0 << true;
    QTest::newRow("all there is") << 10.0 << 0.0 << true;
    QTest::newRow("constant at the bound") << 0.0 << 5.0 << true;
    // High 5 V and low -4.9999 V: the offset 0.00005 is rounded up.
    QTest::newRow("rounded levels") << 9.9999 << 0.0001 << true;
    QTest::newRow("too much amplitude") << 10.001 << 0.0 << false;
    QTest::newRow("too high") << 2.0 << 4.001 << false;
    QTest::newRow("too low") << 2.0 << -4.001 << false;
    QTest::newRow("negative amplitude") << -1.0 << 0.0 << false;
    QTest::newRow("amplitude NaN") << nan << 0.0 << false;
    QTest::newRow("offset NaN") << 1.0 << nan << false;
    QTest::newRow("amplitude infinite") << infinity << 0.0 << false;
    QTest::newRow("offset infinite") << 1.0 << -infinity << false;
}

void TestGeneratorLimits::levels()
{
    QFETCH(double, amplitude);
    QFETCH(double, offset);
    QTEST(generatorLimits(QStringLiteral("KVX7010X")).canPlay(amplitude, offset), "playable");
}

QTEST_APPLESS_MAIN(TestGeneratorLimits)
#include "test_generatorlimits.moc"
