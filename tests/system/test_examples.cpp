// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "devicetable.h"
#include "engineeringtext.h"
#include "parametertable.h"
#include "pulsetrain.h"
#include "setupdocument.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

/// The example setups are what the editor would have saved, and play on every model.
class TestExamples : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void readsAsSaved_data() { addExamples(); }
    void readsAsSaved();
    void cellsAreAsShown_data() { addExamples(); }
    void cellsAreAsShown();
    void levelsFitEveryFamily_data() { addExamples(); }
    void levelsFitEveryFamily();
    void checkFindsNothing_data() { addExamples(); }
    void checkFindsNothing();
    void checkWouldFindSomething();

private:
    void addExamples();
    QByteArray read() const;
    QJsonObject stored() const;
    static int check(const QString& path, QByteArray& findings);

    QDir m_examples;
};

void TestExamples::initTestCase()
{
    m_examples.setPath(QString::fromLocal8Bit(qgetenv("MPB_SOURCE_DIR")) +
                       QStringLiteral("/examples"));
    QVERIFY(m_examples.exists(QStringLiteral("double-pulse.json")));
}

void TestExamples::addExamples()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : m_examples.entryList({QStringLiteral("*.json")}))
        QTest::newRow(qPrintable(name)) << name;
}

QByteArray TestExamples::read() const
{
    QFETCH(QString, name);
    QFile file(m_examples.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QJsonObject TestExamples::stored() const
{
    return QJsonDocument::fromJson(read()).object().value(SetupKey::MultiplePulses).toObject();
}

void TestExamples::readsAsSaved()
{
    const QJsonObject multiple = stored();
    const PulseTrain train = PulseTrain::fromDocument({{SetupKey::MultiplePulses, multiple}});
    const QJsonArray rows = multiple.value(SetupKey::WidthGap).toArray();

    SetupValues values;
    values.pulseCount = rows.size();
    values.highLevel = train.offset + train.amplitude / 2;
    values.lowLevel = train.offset - train.amplitude / 2;
    values.triggerDelay = train.delay;
    values.triggerTimer = train.triggerTimer;
    values.triggerSource = train.triggerSource;
    values.triggerSlope = train.triggerSlope;
    values.load = train.load;
    for (const QJsonValue& row : rows)
        values.rows.append({row[SetupKey::Width].toString(), row[SetupKey::Gap].toString()});

    const QJsonObject saved = {{SetupKey::MultiplePulses, multiplePulsesFromValues(values)}};
    QCOMPARE(read(), QJsonDocument(saved).toJson());
}

void TestExamples::cellsAreAsShown()
{
    const QRegularExpression shown(QStringLiteral("^\\d{1,3}\\.\\d{3}[munKMG]?$"));
    const auto isShown = [&](const QJsonValue& cell, const ParameterRange& range) {
        const QString text = cell.toString();
        const double seconds = engineeringTextToDouble(text, range.resolution);
        return shown.match(text).hasMatch() && seconds >= range.minimum && seconds <= range.maximum;
    };
    const QJsonArray rows = stored().value(SetupKey::WidthGap).toArray();
    QVERIFY(rows.size() >= PulseCountRange.minimum && rows.size() <= PulseCountRange.maximum);
    for (const QJsonValue& row : rows) {
        QVERIFY(isShown(row[SetupKey::Width], PulseWidthRange));
        QVERIFY(isShown(row[SetupKey::Gap], PulseGapRange));
    }
}

void TestExamples::levelsFitEveryFamily()
{
    const PulseTrain train = PulseTrain::fromDocument({{SetupKey::MultiplePulses, stored()}});
    const double high = train.fileOffset() + train.fileAmplitude() / 2;
    const double low = train.fileOffset() - train.fileAmplitude() / 2;
    for (const QStringList& family : deviceFamilies()) {
        QVERIFY(train.fileAmplitude() >= family.at(DeviceMinAmplitude).toDouble());
        QVERIFY(train.fileAmplitude() <= family.at(DeviceMaxAmplitude).toDouble());
        QVERIFY(high <= family.at(DeviceOffsetPlus).toDouble());
        QVERIFY(low >= family.at(DeviceOffsetMinus).toDouble());
    }
}

int TestExamples::check(const QString& path, QByteArray& findings)
{
    const QString folder = QString::fromLocal8Bit(qgetenv("MPB_BIN_DIR"));
    QProcess mpwv;
    mpwv.start(folder + QStringLiteral("/mpwv"), {QStringLiteral("check"), path});
    if (!mpwv.waitForFinished(60000) || mpwv.exitStatus() != QProcess::NormalExit)
        return -1;
    findings = mpwv.readAllStandardOutput() + mpwv.readAllStandardError();
    return mpwv.exitCode();
}

void TestExamples::checkFindsNothing()
{
    QFETCH(QString, name);
    QByteArray findings;
    QCOMPARE(check(m_examples.filePath(name), findings), 0);
    QCOMPARE(findings, QByteArray());
}

void TestExamples::checkWouldFindSomething()
{
    QTemporaryDir folder;
    QFile odd(folder.filePath(QStringLiteral("odd.json")));
    QVERIFY(odd.open(QIODevice::WriteOnly));
    odd.write("{\"multiple pulses\": {\"width/gap\": [{\"width\": \"9.000u\", \"gap\": \"x\"}]}}");
    odd.close();
    QByteArray findings;
    QCOMPARE(check(odd.fileName(), findings), 1);
    QVERIFY(findings.contains("odd.json"));
}

QTEST_GUILESS_MAIN(TestExamples)

#include "test_examples.moc"
