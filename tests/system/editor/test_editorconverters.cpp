// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cplugincombcomponent.h"
#include "devicetable.h"
#include "hostcallbacks.h"
#include "logcapture.h"
#include "multipulseeditor.h"
#include "setupdocument.h"
#include "waveformreader.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

using namespace appPlugins;

namespace {

QStringList& warnings()
{
    static QStringList list;
    return list;
}

int warn(QString text)
{
    warnings().append(text);
    return 0;
}

QString key(const char* name)
{
    return QLatin1String(name);
}

QJsonObject standardDocument(int ohms)
{
    QJsonObject pulses = defaultMultiplePulses();
    pulses.insert(SetupKey::LoadImpedance, ohms);
    return {{SetupKey::MultiplePulses, pulses}};
}

QJsonObject voltageOf(const QJsonObject& document)
{
    return document.value(SetupKey::MultiplePulses).toObject().value(SetupKey::Voltage).toObject();
}

// An editor without a host.
struct Window
{
    explicit Window(int family = 4)
    {
        warnings().clear();
        g_warningMessage = warn;
        g_currentDeviceType = deviceFamilies().at(family);
        editor.reset(new MultiPulseEditor(nullptr));
    }

    RealCombComponent* level(const char* name) const
    {
        return editor->findChild<RealCombComponent*>(key(name));
    }

    QByteArray path(const char* name) const
    {
        return folder.filePath(QString::fromUtf8(name)).toUtf8();
    }

    const LogCapture log;
    QTemporaryDir folder;
    std::unique_ptr<MultiPulseEditor> editor;
};

} // namespace

class TestEditorConverters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesOtherMembersAlone();
    void storesAmplitudeAndOffset();
    void logsTheLevels();
    void boundsAreTheInstruments_data();
    void boundsAreTheInstruments();
    void waveformIsForTheLoadOfTheEditor_data();
    void waveformIsForTheLoadOfTheEditor();
    void waveformOfNothing();
    void waveformThatCannotBeWritten();
};

void TestEditorConverters::leavesOtherMembersAlone()
{
    const Window window;
    const QJsonObject old = {{key("Gap Mode"), 1}, {key("own"), 2}};
    QJsonObject document = {{key("other"), QJsonArray({1})}, {SetupKey::MultiplePulses, old}};
    window.editor->downLoadDisplay(document);
    QCOMPARE(document.size(), 2);
    QCOMPARE(document.value(key("other")), QJsonValue(QJsonArray({1})));
    QStringList keys = defaultMultiplePulses().keys();
    keys.removeOne(key("Gap Mode"));
    QCOMPARE(document.value(SetupKey::MultiplePulses).toObject().keys(), keys);
}

void TestEditorConverters::storesAmplitudeAndOffset()
{
    const Window window;
    window.level("HighLevel")->set(1);
    window.level("LowLevel")->set(0);
    QJsonObject document;
    window.editor->downLoadDisplay(document);
    const QJsonObject voltage = {{key("amplitude"), 1}, {key("offset"), 0.5}, {key("type"), 1}};
    QCOMPARE(voltageOf(document), voltage);
}

void TestEditorConverters::logsTheLevels()
{
    const Window window;
    QJsonObject document;
    window.editor->downLoadDisplay(document);
    QVERIFY(LogCapture::messages().contains(
        key("info: downLoadDisplay dHighLevel= 1.25 dLowLevel= -1.25 dAmplitude 2.5 dOffset 0")));
}

void TestEditorConverters::boundsAreTheInstruments_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<double>("bound");
    QTest::newRow("10 Vpp") << 4 << 5.0;
    QTest::newRow("5 Vpp") << 0 << 2.5;
}

void TestEditorConverters::boundsAreTheInstruments()
{
    QFETCH(int, family);
    QFETCH(double, bound);
    const Window window(family);
    QJsonObject pulses = defaultMultiplePulses();
    pulses.insert(SetupKey::Voltage, QJsonObject{{SetupKey::Amplitude, 100}});
    window.editor->updateAllComponentsDisplay({{SetupKey::MultiplePulses, pulses}});
    QCOMPARE(window.level("HighLevel")->get(), bound);
    QCOMPARE(window.level("LowLevel")->get(), -bound);
    // Each level once for the amplitude and once for the offset.
    QCOMPARE(warnings().size(), 4);
}

void TestEditorConverters::waveformIsForTheLoadOfTheEditor_data()
{
    QTest::addColumn<int>("shown");
    QTest::addColumn<int>("stored");
    QTest::addColumn<double>("amplitude");
    QTest::newRow("50 ohms") << 50 << 50 << 2.0;
    QTest::newRow("document says high impedance") << 50 << 10000 << 2.0;
    QTest::newRow("high impedance") << 10000 << 10000 << 1.0;
    QTest::newRow("document says 50 ohms") << 10000 << 50 << 1.0;
}

void TestEditorConverters::waveformIsForTheLoadOfTheEditor()
{
    QFETCH(int, shown);
    QFETCH(int, stored);
    QFETCH(double, amplitude);
    const Window window;
    window.editor->updateAllComponentsDisplay(standardDocument(shown));
    const QByteArray path = window.path("\u00fc \u6ce2.mpwv");
    QVERIFY(window.editor->makeAndSaveMPWVWfm(path.constData(), standardDocument(stored)));
    WaveformFile file;
    QCOMPARE(readWaveform(QString::fromUtf8(path), file), QString());
    QCOMPARE(file.header.ampValue, amplitude);
}

void TestEditorConverters::waveformOfNothing()
{
    const Window window;
    const QByteArray path = window.path("nothing.mpwv");
    QVERIFY(window.editor->makeAndSaveMPWVWfm(path.constData(), QJsonObject()));
    WaveformFile file;
    QCOMPARE(readWaveform(QString::fromUtf8(path), file), QString());
    QCOMPARE(file.header.points, Uint32(0));
    QCOMPARE(file.header.ampValue, 0.0);
}

void TestEditorConverters::waveformThatCannotBeWritten()
{
    const Window window;
    const QJsonObject document = standardDocument(50);
    QVERIFY(
        !window.editor->makeAndSaveMPWVWfm(window.path("missing/a.mpwv").constData(), document));
    QVERIFY(!window.editor->makeAndSaveMPWVWfm(window.path("").constData(), document));
    QCOMPARE(warnings(), QStringList());
}

QTEST_MAIN(TestEditorConverters)
#include "test_editorconverters.moc"
