// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editorsession.h"

#include "cplugincombcomponent.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace appPlugins;

namespace {

const QString DefaultSetupPath = QStringLiteral("/mnt/user-data/appPluginsDefaultSetup.json");

/// A setup of so many pulses, in which nothing else is of interest.
bool writeDefaultSetup(int count)
{
    QJsonArray rows;
    for (int row = 0; row < count; ++row) {
        rows.append(QJsonObject{{QStringLiteral("width"), QStringLiteral("2.000u")},
                                {QStringLiteral("gap"), QStringLiteral("10.000u")}});
    }
    const QJsonObject pulses{
        {QStringLiteral("pulse numbers"), QJsonObject{{QStringLiteral("value"), count}}},
        {QStringLiteral("width/gap"), rows}};
    const QJsonObject document{{QStringLiteral("multiple pulses"), pulses}};
    QFile file(DefaultSetupPath);
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(document).toJson()) > 0;
}

void pressDefault(const EditorHost& host)
{
    EditorHost::record().questionResult = 1;
    FrontPanel::tap(host.button(EditorHost::Default));
}

} // namespace

/// What the window keeps from one show to the next, and what it reads anew.
class TestWindowShownAgain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void valuesStayBetweenShows();
    void limitsStayBetweenShows();

    void defaultSetupIsReadAfterTheInstrument();
    void defaultSetupIsReadAtEachShow();
    void missingDefaultSetupKeepsTheLast();
};

void TestWindowShownAgain::cleanup()
{
    QFile::remove(DefaultSetupPath);
}

void TestWindowShownAgain::valuesStayBetweenShows()
{
    EditorSession session(InstrumentScript::identify("KVX7010C") + InstrumentScript::reset());
    EditorHost& host = session.host;
    host.exec([&] {
        host.enter(host.count(), QStringLiteral("5"));
        host.enter(host.highLevel(), QStringLiteral("2"));
        host.enter(host.delay(), QStringLiteral("25"));
        host.choose(host.source(), 2);
        host.choose(host.load(), 1);
    });
    host.show();
    host.exec([&] {
        QCOMPARE(host.count()->get(), 5.0);
        QCOMPARE(host.table()->model()->rowCount(), 5);
        QCOMPARE(host.highLevel()->get(), 4.0);
        QCOMPARE(host.lowLevel()->get(), -2.5);
        QCOMPARE(host.delay()->get(), 2.5e-5);
        QCOMPARE(int(host.source()->get()), 2);
        QVERIFY(host.timer()->isVisible());
        QCOMPARE(int(host.load()->get()), 1);
    });
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestWindowShownAgain::limitsStayBetweenShows()
{
    const LogCapture log;
    const ScriptedServer server(InstrumentScript::identify("KVX7052C") +
                                InstrumentScript::identify("KVX7030C"));
    EditorHost host;
    double max = 0;
    double min = 0;
    for (int i = 0; i < 2; ++i) {
        host.show();
        host.highLevel()->getMaxMinValue(max, min);
        QCOMPARE(max, 2.5);
    }
}

void TestWindowShownAgain::defaultSetupIsReadAfterTheInstrument()
{
    const LogCapture log;
    EditorHost host;
    QVERIFY(writeDefaultSetup(3));
    EditorHost::record().whileWarning = [] { QVERIFY(writeDefaultSetup(4)); };
    host.show();
    EditorHost::record().whileWarning = nullptr;
    host.exec([&] {
        pressDefault(host);
        QCOMPARE(host.count()->get(), 4.0);
    });
}

void TestWindowShownAgain::defaultSetupIsReadAtEachShow()
{
    QVERIFY(writeDefaultSetup(3));
    EditorSession session(InstrumentScript::reset() + InstrumentScript::identify("KVX7010C") +
                          InstrumentScript::reset());
    EditorHost& host = session.host;
    host.exec([&] {
        pressDefault(host);
        QCOMPARE(host.count()->get(), 3.0);
    });

    QVERIFY(writeDefaultSetup(4));
    host.exec([&] {
        pressDefault(host);
        QCOMPARE(host.count()->get(), 3.0);
    });
    host.show();
    host.exec([&] {
        QCOMPARE(host.count()->get(), 3.0);
        pressDefault(host);
        QCOMPARE(host.count()->get(), 4.0);
    });
}

void TestWindowShownAgain::missingDefaultSetupKeepsTheLast()
{
    QVERIFY(writeDefaultSetup(3));
    const LogCapture log;
    EditorHost host;
    host.show();
    QVERIFY(QFile::remove(DefaultSetupPath));
    host.show();
    host.exec([&] {
        pressDefault(host);
        QCOMPARE(host.count()->get(), 3.0);
    });
    QVERIFY(!QFile::exists(DefaultSetupPath));
}

QTEST_MAIN(TestWindowShownAgain)
#include "test_windowshownagain.moc"
