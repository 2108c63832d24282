// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editorparts.h"
#include "editorsession.h"

#include <QAction>
#include <QTimer>

#include <functional>

using namespace appPlugins;
using namespace EditorParts;

namespace {

/// Looks at the host's state whenever the plug-in logs a certain text.
class LogWatch
{
public:
    static void start(const QString& text, const std::function<void()>& look)
    {
        m_text = text;
        m_look = look;
        m_previous = qInstallMessageHandler(&LogWatch::handle);
    }
    static void stop() { qInstallMessageHandler(m_previous); }

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (text.startsWith(m_text))
            m_look();
        m_previous(type, context, text);
    }

    static QString m_text;
    static std::function<void()> m_look;
    static QtMessageHandler m_previous;
};

QString LogWatch::m_text;
std::function<void()> LogWatch::m_look;
QtMessageHandler LogWatch::m_previous = nullptr;

} // namespace

/// The host's operations on the plug-in's one window.
class TestWindowOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showReturnsNullAndShowsNothing();
    void firstParentStays();
    void parentThatComesLater();
    void showSizesAndCentres_data();
    void showSizesAndCentres();
    void emptyCallbackThrows();
    void orderOfShow();
    void everyShowAsksTheInstrument();

    void editorIsMadeOnFirstUse_data();
    void editorIsMadeOnFirstUse();
    void closeBeforeShow();
    void windowIsTheOneEditor();

    void execResults_data();
    void execResults();
    void closeEndsExec();
    void execTwice();

    void resetAtEachExec();
    void resetWithoutAnInstrument();
    void outputIsShownAsStoppedAtExec();
};

void TestWindowOperations::showReturnsNullAndShowsNothing()
{
    const LogCapture log;
    EditorHost host;
    host.show();
    int calls = 0;
    QCOMPARE(host.plugin()->show(0, 0, 800, 480, host.surface(), [&calls] { ++calls; }), 0);
    QCOMPARE(calls, 1);
    QVERIFY(host.editor() != nullptr);
    QVERIFY(!host.editor()->isVisible());
}

void TestWindowOperations::firstParentStays()
{
    const LogCapture log;
    EditorHost host;
    host.show();
    QCOMPARE(host.editor()->parentWidget(), host.surface());
    QWidget other;
    host.plugin()->show(0, 0, 800, 480, &other, [] {});
    QCOMPARE(host.editor()->parentWidget(), host.surface());
    host.plugin()->show(0, 0, 800, 480, nullptr, [] {});
    QCOMPARE(host.editor()->parentWidget(), host.surface());
}

void TestWindowOperations::parentThatComesLater()
{
    const LogCapture log;
    EditorHost host;
    host.plugin()->show(0, 0, 800, 480, nullptr, [] {});
    QVERIFY(host.editor()->parentWidget() == nullptr);
    QVERIFY(host.editor()->isWindow());
    host.show();
    QCOMPARE(host.editor()->parentWidget(), host.surface());
    QVERIFY(!host.editor()->isWindow());
}

void TestWindowOperations::showSizesAndCentres_data()
{
    QTest::addColumn<QRect>("asked");
    QTest::addColumn<QRect>("given");
    QTest::newRow("whole screen") << QRect(0, 0, 800, 480) << QRect(0, 0, 800, 480);
    QTest::newRow("smaller") << QRect(0, 0, 400, 300) << QRect(200, 90, 400, 300);
    QTest::newRow("smaller elsewhere") << QRect(100, 50, 400, 300) << QRect(200, 90, 400, 300);
}

void TestWindowOperations::showSizesAndCentres()
{
    QFETCH(QRect, asked);
    QFETCH(QRect, given);
    const LogCapture log;
    EditorHost host;
    host.show();
    host.plugin()->show(asked.x(), asked.y(), asked.width(), asked.height(), host.surface(), [] {});
    const auto* content = host.editor()->findChild<QWidget*>(QStringLiteral("m_pSubClassFillArea"));
    QCOMPARE(content->geometry(), given);
    QVERIFY(LogCapture::messages().contains(
        QStringLiteral("info: WindowModalDialogWithMask::setGeometry x=%1, y=%2, w=%3, h=%4")
            .arg(asked.x())
            .arg(asked.y())
            .arg(asked.width())
            .arg(asked.height())));
}

void TestWindowOperations::emptyCallbackThrows()
{
    const LogCapture log;
    EditorHost host;
    QVERIFY_EXCEPTION_THROWN(host.plugin()->show(0, 0, 800, 480, host.surface(), GetIdCallback()),
                             std::bad_function_call);
    QVERIFY(EditorHost::record().warnings.isEmpty());
    QVERIFY(CAppInterface::getCurrent() == nullptr);
    QCOMPARE(editorCount(), 0);
    // The plug-in goes on as if it had not been called.
    host.show();
    QVERIFY(host.editor() != nullptr);
}

void TestWindowOperations::orderOfShow()
{
    const LogCapture log;
    EditorHost host;
    CAppInterface* currentAtIdentification = host.plugin();
    CAppInterface* currentAtConstruction = nullptr;
    int editorsAtIdentification = -1;
    QWidget* parentAtGeometry = nullptr;

    EditorHost::record().whileWarning = [&] {
        qInfo("identified");
        currentAtIdentification = CAppInterface::getCurrent();
        editorsAtIdentification = editorCount();
    };
    LogWatch::start(QStringLiteral("initUI"),
                    [&] { currentAtConstruction = CAppInterface::getCurrent(); });
    host.plugin()->show(0, 0, 800, 480, host.surface(), [] { qInfo("called back"); });
    LogWatch::stop();
    QVERIFY(currentAtIdentification == nullptr);
    QCOMPARE(editorsAtIdentification, 0);
    QVERIFY(currentAtConstruction == host.plugin());

    const QStringList messages = LogCapture::messages();
    const auto place = [&](const char* begin) {
        for (int i = 0; i < messages.size(); ++i) {
            if (messages.at(i).startsWith(QLatin1String(begin)))
                return i;
        }
        return -1;
    };
    QVERIFY(place("info: called back") >= 0);
    QVERIFY(place("info: identified") > place("info: called back"));
    QVERIFY(place("debug: initUI") > place("info: identified"));
    QVERIFY(place("info: WindowModalDialogWithMask::setGeometry") > place("debug: initUI"));

    // The parent comes before the size.
    EditorHost::record().whileWarning = nullptr;
    LogWatch::start(QStringLiteral("WindowModalDialogWithMask::setGeometry"),
                    [&] { parentAtGeometry = host.surface()->findChild<QDialog*>(); });
    host.show();
    LogWatch::stop();
    QVERIFY(parentAtGeometry != nullptr);
}

void TestWindowOperations::everyShowAsksTheInstrument()
{
    const LogCapture log;
    const ScriptedServer server(InstrumentScript::identify("KVX7052C") +
                                InstrumentScript::identify("KVX7030C"));
    EditorHost host;
    host.show();
    host.show();
    QVERIFY(server.waitForGone(2));
    QCOMPARE(server.received(), QByteArray("*IDN?\n*IDN?\n"));
    QCOMPARE(editorCount(), 1);
}

void TestWindowOperations::editorIsMadeOnFirstUse_data()
{
    QTest::addColumn<QString>("operation");
    for (const char* operation : {"show", "exec", "close", "getWindow"})
        QTest::newRow(operation) << QString(QLatin1String(operation));
}

void TestWindowOperations::editorIsMadeOnFirstUse()
{
    QFETCH(QString, operation);
    const LogCapture log;
    EditorHost host(EditorHost::WithoutSegment);
    QCOMPARE(editorCount(), 0);
    if (operation == QLatin1String("show")) {
        host.show();
    } else if (operation == QLatin1String("exec")) {
        QTimer::singleShot(0, host.surface(), [&] { host.plugin()->close(); });
        QCOMPARE(host.plugin()->exec(), 0);
    } else if (operation == QLatin1String("close")) {
        QCOMPARE(host.plugin()->close(), 0);
    } else {
        QVERIFY(host.plugin()->getWindow() != nullptr);
    }
    QCOMPARE(editorCount(), 1);
    QVERIFY(!host.editor()->isVisible());
    QCOMPARE(editorCount(), 1);
    // Without a parent it would stay for the next host.
    delete host.editor();
}

void TestWindowOperations::closeBeforeShow()
{
    const LogCapture log;
    EditorHost host;
    QCOMPARE(host.plugin()->close(), 0);
    QCOMPARE(host.editor()->result(), int(QDialog::Rejected));
    QVERIFY(EditorHost::record().warnings.isEmpty());
    QVERIFY(CAppInterface::getCurrent() == nullptr);

    host.show();
    QCOMPARE(host.exec([&] { QVERIFY(host.editor()->isVisible()); }), 0);
}

void TestWindowOperations::windowIsTheOneEditor()
{
    const LogCapture log;
    EditorHost host;
    host.show();
    QWidget* const window = host.plugin()->getWindow();
    QCOMPARE(window->metaObject()->className(), "MultiPulseEditor");
    host.show();
    QCOMPARE(host.plugin()->getWindow(), window);
    host.exec([&] { QCOMPARE(host.plugin()->getWindow(), window); });
    QCOMPARE(host.plugin()->getWindow(), window);
}

void TestWindowOperations::execResults_data()
{
    QTest::addColumn<int>("code");
    QTest::newRow("accepted") << 1;
    QTest::newRow("rejected") << 0;
}

void TestWindowOperations::execResults()
{
    QFETCH(int, code);
    EditorSession session;
    EditorHost& host = session.host;
    QCOMPARE(host.exec([&] {
        if (code == QDialog::Accepted)
            host.editor()->accept();
        else
            host.editor()->reject();
    }),
             code);
    QVERIFY(!host.editor()->isVisible());
}

void TestWindowOperations::closeEndsExec()
{
    EditorSession session;
    EditorHost& host = session.host;
    bool closed = false;
    QCOMPARE(host.exec([&] {
        QVERIFY(host.editor()->isVisible());
        QCOMPARE(host.plugin()->close(), 0);
        closed = !host.editor()->isVisible();
    }),
             0);
    QVERIFY(closed);
}

void TestWindowOperations::execTwice()
{
    EditorSession session;
    EditorHost& host = session.host;
    QCOMPARE(host.exec([&] { host.editor()->accept(); }), 1);
    QCOMPARE(host.exec([&] { QVERIFY(host.editor()->isVisible()); }), 0);
    QCOMPARE(host.exec([&] { host.editor()->accept(); }), 1);
}

void TestWindowOperations::resetAtEachExec()
{
    EditorSession session(InstrumentScript::reset());
    EditorHost& host = session.host;
    QCOMPARE(session.server.received(), QByteArray("*IDN?\n"));
    bool resetBeforeVisible = false;
    LogWatch::start(QStringLiteral("App sent *RST"),
                    [&] { resetBeforeVisible = !host.editor()->isVisible(); });
    host.exec([] {});
    LogWatch::stop();
    QVERIFY(resetBeforeVisible);
    QVERIFY(session.server.waitForBytes(11));
    QCOMPARE(session.server.received(), QByteArray("*IDN?\n*RST\n"));

    host.exec([] {});
    QVERIFY(session.server.waitForBytes(16));
    QCOMPARE(session.server.received(), QByteArray("*IDN?\n*RST\n*RST\n"));
    QCOMPARE(LogCapture::messages().count(QStringLiteral("info: App sent *RST")), 2);
    QVERIFY(EditorHost::record().warnings.isEmpty());
}

void TestWindowOperations::resetWithoutAnInstrument()
{
    const LogCapture log;
    EditorHost host;
    host.show();
    const QString text =
        QStringLiteral("TcpSocket connect error! port:30000, reason:Connection refused");
    QCOMPARE(EditorHost::record().warnings, QStringList(text));
    host.exec([&] { QVERIFY(host.editor()->isVisible()); });
    QCOMPARE(EditorHost::record().warnings, (QStringList{text, text}));
    QVERIFY(LogCapture::messages().contains(QStringLiteral("info: App sent *RST")));
    QVERIFY(EditorHost::record().criticals.isEmpty());
}

// The state alone: text and controls are those of the run that was under way.
void TestWindowOperations::outputIsShownAsStoppedAtExec()
{
    EditorSession session(InstrumentScript::run() + InstrumentScript::reset());
    EditorHost& host = session.host;
    session.exec([&] {
        FrontPanel::tap(host.button(EditorHost::Run));
        QVERIFY(host.action(EditorHost::Run)->isChecked());
    });
    QVERIFY(host.action(EditorHost::Run)->isChecked());
    const QByteArray afterRun = session.server.received();

    session.exec([&] {
        QVERIFY(!host.action(EditorHost::Run)->isChecked());
        QVERIFY(!host.button(EditorHost::Run)->isChecked());
        QCOMPARE(host.action(EditorHost::Run)->text(), QStringLiteral("STR_ID_SWEEP_STOP"));
        QVERIFY(!host.count()->isEnabled());
        QVERIFY(!host.action(EditorHost::Open)->isEnabled());
    });
    QVERIFY(session.server.waitForBytes(afterRun.size() + 5));
    QCOMPARE(session.server.received(), afterRun + "*RST\n");
}

QTEST_MAIN(TestWindowOperations)
#include "test_windowoperations.moc"
