// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "channelcard.h"
#include "fontsubstitution.h"
#include "frontpanel.h"
#include "homepage.h"
#include "hosttext.h"
#include "languages.h"
#include "screendescription.h"
#include "screenstart.h"
#include "textlabel.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

#include <limits>

namespace {

/// A catalogue that has every identifier: its text is a mark, the identifier, and places for values
/// where the host puts some.
class MarkTranslator : public QTranslator
{
public:
    explicit MarkTranslator(const QString& mark)
        : m_mark(mark)
    {
        QCoreApplication::installTranslator(this);
    }
    ~MarkTranslator() override { QCoreApplication::removeTranslator(this); }

    QString translate(const char*, const char* textId, const char*, int) const override
    {
        const QString text = m_mark + QString::fromLatin1(textId);
        const QStringList filled{QLatin1String(HostText::Channel), QLatin1String(HostText::Silent),
                                 QLatin1String(HostText::Answering),
                                 QLatin1String(HostText::BurstMany),
                                 QLatin1String(HostText::TriggerTimer)};
        return filled.contains(QLatin1String(textId)) ? text + QStringLiteral(" %1") : text;
    }
    bool isEmpty() const override { return false; }

private:
    QString m_mark;
};

InstrumentState answering()
{
    InstrumentState state;
    state.link = InstrumentState::Answering;
    state.model = QStringLiteral("KVX70402");
    state.channels[0].on = true;
    state.channels[0].frequency = 12345;
    state.channels[0].amplitude = 2.5;
    state.channels[0].high = 1.25;
    state.channels[0].low = -1.25;
    state.channels[0].burst = true;
    state.channels[0].shape = ChannelState::File;
    state.channels[0].file = QStringLiteral("M:/run.mpwv");
    state.channels[1].frequency = 1e6;
    state.channels[1].load = std::numeric_limits<double>::infinity();
    state.trigger.source = TriggerState::External;
    return state;
}

QVector<PluginFile> plugins(int count)
{
    QVector<PluginFile> list;
    for (int i = 0; i < count; ++i)
        list.append(
            {QStringLiteral("/p/libTrial%1.so").arg(i), QStringLiteral("Trial %1").arg(i), i != 1});
    return list;
}

QStringList texts()
{
    QStringList list;
    for (const Keypad::ScreenItem& item : visibleTexts())
        list.append(item.text);
    return list;
}

} // namespace

class TestHomePage : public QObject
{
    Q_OBJECT

    ScreenStart m_screen;

private slots:
    void initTestCase() { qRegisterMetaType<PluginFile>(); }

    void init()
    {
        m_texts = std::make_unique<MarkTranslator>(QString());
        m_page = std::make_unique<HomePage>(nullptr);
        m_page->setGeometry(0, 0, 800, 480);
        m_page->setPlugins(plugins(3), QStringLiteral("libTrial2.so"));
        m_page->show();
        QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    }

    void showsBothChannels()
    {
        m_page->setInstrument(answering());
        const QStringList seen = texts();
        for (const char* text :
             {"KVX70402", "12.345 kHz", "1.000 MHz", "2.500 Vpp", "1.250 V", "−1.250 V", "run.mpwv",
              HostText::On, HostText::Off, HostText::BurstOne, HostText::Continuous,
              HostText::TriggerRising, HostText::HighImpedance})
            QVERIFY2(seen.contains(QString::fromUtf8(text)), text);
        QCOMPARE(seen.count(QStringLiteral("0.000 V")), 4);
    }

    void saysWhenTheInstrumentIsSilent()
    {
        InstrumentState state = answering();
        m_page->setInstrument(state);
        state.link = InstrumentState::Silent;
        state.reason = QStringLiteral("nobody there");
        m_page->setInstrument(state);
        const QStringList seen = texts();
        QVERIFY(seen.contains(QStringLiteral("HOSTID_SILENT nobody there")));
        // Old values would look like present ones.
        QVERIFY(!seen.contains(QStringLiteral("12.345 kHz")));
        m_page->setInstrument(answering());
        QVERIFY(texts().contains(QStringLiteral("12.345 kHz")));
    }

    void followsTheLanguage()
    {
        m_page->setInstrument(answering());
        QVERIFY(texts().contains(QLatin1String(HostText::Settings)));
        const MarkTranslator marked(QStringLiteral("x"));
        QTRY_VERIFY(texts().contains(QStringLiteral("xHOSTID_SETTINGS")));
        FrontPanel::settle();
        for (const QString& text : texts())
            QVERIFY2(!text.startsWith(QLatin1String("HOSTID_")), qPrintable(text));
    }

    void lastOpenedPluginHasTheFocus()
    {
        m_page->focusMenu();
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("Trial2"));
        QVERIFY(texts().contains(QLatin1String(HostText::LastOpened)));
        QVERIFY(texts().contains(QLatin1String(HostText::NotUsable)));
    }

    void knobGoesRoundTheInputs()
    {
        m_page->focusMenu();
        QStringList visited;
        for (int i = 0; i < 6; ++i) {
            FrontPanel::knob(1);
            visited.append(QApplication::focusWidget()->objectName());
        }
        QCOMPARE(visited, QStringList({QStringLiteral("settings"), QStringLiteral("help"),
                                       QStringLiteral("Trial0"), QStringLiteral("Trial1"),
                                       QStringLiteral("Trial2"), QStringLiteral("settings")}));
        FrontPanel::knob(-1);
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("Trial2"));
        FrontPanel::press(Qt::Key_Left);
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("Trial1"));
        FrontPanel::press(Qt::Key_Right);
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("Trial2"));
    }

    void isChosenByKeyOrFinger_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Enter") << int(Qt::Key_Return);
        QTest::newRow("Enter of the number pad") << int(Qt::Key_Enter);
        QTest::newRow("knob") << int(QT_KEY_KNOB);
        QTest::newRow("finger") << 0;
    }

    void isChosenByKeyOrFinger()
    {
        QFETCH(int, key);
        QSignalSpy chosen(m_page.get(), &HomePage::pluginChosen);
        m_page->focusMenu();
        if (key != 0)
            FrontPanel::press(key);
        else
            FrontPanel::tap(QApplication::focusWidget());
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.first().first().value<PluginFile>().path,
                 QStringLiteral("/p/libTrial2.so"));
    }

    // The release of the key that closed a plug-in arrives here.
    void aReleaseAloneChoosesNothing()
    {
        QSignalSpy chosen(m_page.get(), &HomePage::pluginChosen);
        m_page->focusMenu();
        FrontPanel::post(QEvent::KeyRelease, Qt::Key_Return);
        FrontPanel::settle();
        QCOMPARE(chosen.size(), 0);
    }

    void buttonsLeadToTheirPages()
    {
        QSignalSpy settings(m_page.get(), &HomePage::settingsWanted);
        QSignalSpy help(m_page.get(), &HomePage::helpWanted);
        for (const char* name : {"settings", "help"}) {
            auto* button = m_page->findChild<QPushButton*>(QLatin1String(name));
            QVERIFY(button->height() >= 40);
            FrontPanel::tap(button);
        }
        QCOMPARE(settings.size(), 1);
        QCOMPARE(help.size(), 1);
    }

    void manyPluginsAreReachedByKnob()
    {
        m_page->setPlugins(plugins(12), QString());
        m_page->focusMenu();
        FrontPanel::settle();
        QVERIFY(!texts().contains(QStringLiteral("Trial 11")));
        FrontPanel::knob(11);
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("Trial11"));
        QTRY_VERIFY(texts().contains(QStringLiteral("Trial 11")));
    }

    void withoutPluginsItSaysSo()
    {
        m_page->setPlugins({}, QString());
        m_page->focusMenu();
        FrontPanel::settle();
        QVERIFY(texts().contains(QLatin1String(HostText::NoApplications)));
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("settings"));
    }

    void longValuesAreShownWhole_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("source");
        for (const QString& language : Languages::all()) {
            for (int source : {TriggerState::Manual, TriggerState::External, TriggerState::Timer})
                QTest::addRow("%s %d", qPrintable(language), source) << language << source;
        }
    }

    void longValuesAreShownWhole()
    {
        QFETCH(QString, language);
        QFETCH(int, source);
        substituteTextFont();
        m_texts.reset();
        Languages texts(qEnvironmentVariable("MPB_TRANSLATIONS_DIR"));
        QCOMPARE(texts.install(language), QString());
        FrontPanel::settle();
        InstrumentState state = answering();
        state.trigger.source = decltype(state.trigger.source)(source);
        state.trigger.timer = 0.029411765;
        for (ChannelState& channel : state.channels) {
            channel.frequency = 29411.765;
            channel.burst = true;
            channel.cycles = 1e6;
            channel.amplitude = 19.999;
            channel.low = -9.999;
            channel.offset = -9.999;
        }
        m_page->setInstrument(state);
        FrontPanel::settle();
        int frequencies = 0;
        for (const TextLabel* label : m_page->findChildren<TextLabel*>()) {
            const int wanted = QFontMetrics(label->shownFont()).horizontalAdvance(label->text());
            QVERIFY2(wanted <= label->width(), qPrintable(QStringLiteral("%1: %2 of %3 pixels")
                                                              .arg(label->text())
                                                              .arg(wanted)
                                                              .arg(label->width())));
            frequencies += int(label->text() == QLatin1String("29.411765 kHz"));
        }
        QCOMPARE(frequencies, 2);
    }

    void burstsAndTriggersInWords_data()
    {
        QTest::addColumn<bool>("burst");
        QTest::addColumn<double>("cycles");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << false << 1.0 << "HOSTID_CONTINUOUS";
        QTest::newRow("one") << true << 1.0 << "HOSTID_BURST_ONE";
        QTest::newRow("many") << true << 1e6 << "HOSTID_BURST_MANY 1000000";
        QTest::newRow("endless") << true << std::numeric_limits<double>::infinity()
                                 << "HOSTID_BURST_ENDLESS";
    }

    void burstsAndTriggersInWords()
    {
        QFETCH(bool, burst);
        QFETCH(double, cycles);
        QFETCH(QString, text);
        ChannelState channel;
        channel.burst = burst;
        channel.cycles = cycles;
        QCOMPARE(burstText(channel), text);
    }

private:
    std::unique_ptr<MarkTranslator> m_texts;
    std::unique_ptr<HomePage> m_page;
};

QTEST_MAIN(TestHomePage)
#include "test_homepage.moc"
