// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editorsession.h"
#include "setups.h"

#include "apptypes.h"

#include <QDialog>
#include <QLabel>
#include <QRegularExpression>

using namespace Setups;

Q_DECLARE_METATYPE(QJsonValue)

namespace {

void setGapMode(const EditorHost& host, Uint16 mode)
{
    QVERIFY(
        QMetaObject::invokeMethod(host.editor(), "slt_GapModeParamChanged", Q_ARG(Uint16, mode)));
}

} // namespace

class TestEditorShowsSetup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SetupFiles::emptyFolder(); }

    void appliesOneMember_data();
    void appliesOneMember();
    void appliesInOrder();
    void amplitudeComesWithTheOffsetBefore();
    void logsWhatItApplies();
    void showsThePictureOfTheCount_data();
    void showsThePictureOfTheCount();
    void keepsAChoiceThatIsRefused_data();
    void keepsAChoiceThatIsRefused();

    void choosesTheLoad_data();
    void choosesTheLoad();
    void highZWidensTheLimits();
    void highZWidensFreshLimitsEachTime();
    void fiftyOhmsHalvesNothing();
    void loadOfAFileIsTheOneThatIsChosen();

    void rowsNeedNotMatchTheCount_data();
    void rowsNeedNotMatchTheCount();
    void endsCommonGaps();
};

void TestEditorShowsSetup::appliesOneMember_data()
{
    QTest::addColumn<QByteArray>("member");
    QTest::addColumn<QByteArray>("inner");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QByteArray>("changes");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QStringList>("warnings");

    const auto row = [](const char* tag, const char* member, const char* inner,
                        const QJsonValue& value, const char* changes, const char* to,
                        const QStringList& warnings = {}) {
        QTest::newRow(tag) << QByteArray(member) << QByteArray(inner) << value
                           << QByteArray(changes) << QByteArray(to) << warnings;
    };
    const auto count = [&](const char* tag, const QJsonValue& value, const char* to,
                           const QStringList& warnings = {}) {
        row(tag, "pulse numbers", "value", value, "count", to, warnings);
    };
    count("count", 5, "5");
    count("most pulses", 30, "30");
    count("too many pulses", 31, "30", {outOfRange("31", "2", "30")});
    count("too few pulses", 1, "2", {outOfRange("1", "2", "30")});
    count("negative count", -1000000, "2", {outOfRange("-1e+06", "2", "30")});
    count("count and a half", 2.5, "2", {outOfRange("0", "2", "30")});
    count("count as text", key("5"), "2", {outOfRange("0", "2", "30")});
    count("huge count", 1e18, "2", {outOfRange("0", "2", "30")});

    const auto amplitude = [&](const char* tag, const QJsonValue& value, const char* to,
                               const QStringList& warnings = {}) {
        row(tag, "voltage", "amplitude", value, "levels", to, warnings);
    };
    amplitude("amplitude", 3, "1.5000 -1.5000");
    amplitude("amplitude off the grid", 1.00004, "0.5000 -0.5000");
    amplitude("amplitude of half a step more", 2.00005, "1.0001 -1.0001");
    amplitude("negative amplitude", -1, "-0.5000 0.5000");
    amplitude("amplitude as text", key("3"), "0.0000 0.0000");
    const QStringList highAndLow = {outOfRange("6", "-1.249", "5"),
                                    outOfRange("-6", "-5", "1.249")};
    amplitude("too large an amplitude", 12, "5.0000 -5.0000", highAndLow + highAndLow);

    const auto offset = [&](const char* tag, const QJsonValue& value, const char* to,
                            const QStringList& warnings = {}) {
        row(tag, "voltage", "offset", value, "levels", to, warnings);
    };
    offset("offset", 1, "2.2500 -0.2500");
    offset("offset of half a step", 0.00005, "1.2501 -1.2499");
    offset("offset of less", 0.00004, "1.2500 -1.2500");
    offset("offset beyond the bound", 4, "5.0000 1.2490",
           {outOfRange("5.25", "-1.249", "5"), outOfRange("2.75", "-5", "1.249")});
    row("type is not read", "voltage", "type", 7, "levels", "1.2500 -1.2500");

    const auto delay = [&](const char* tag, const QJsonValue& value, const char* to,
                           const QStringList& warnings = {}) {
        row(tag, "trigger delay", "value", value, "delay", to, warnings);
    };
    delay("delay", 2e-05, "2e-05");
    delay("delay off the grid", 1.234567e-05, "1.23457e-05");
    delay("longest delay", 0.00015, "0.00015");
    delay("too long a delay", 1, "0.00015", {outOfRange("1", "1e-06", "0.00015")});
    delay("negative delay", -1, "1e-06", {outOfRange("-1", "1e-06", "0.00015")});
    delay("delay as text", key("nan"), "1e-06", {outOfRange("0", "1e-06", "0.00015")});

    const auto timer = [&](const char* tag, const QJsonValue& value, const char* to,
                           const QStringList& warnings = {}) {
        row(tag, "trigger timer", "value", value, "timer", to, warnings);
    };
    timer("timer", 0.5, "0.5");
    timer("timer off the grid", 0.12345678, "0.1234568");
    timer("longest timer", 500, "500");
    timer("too long a timer", 600, "500", {outOfRange("600", "2e-06", "500")});
    timer("shortest timer", 2e-06, "2e-06");
    timer("timer of nothing", QJsonValue(), "2e-06", {outOfRange("0", "2e-06", "500")});

    row("slope", "trigger slope", "", 1, "slope", "1");
    row("limits are not read", "trigger delay", "maximum", 0, "delay", "1e-05");
    row("no array of rows", "width/gap", "", key("rows"), "table", "");
    row("no rows", "width/gap", "", QJsonArray(), "table", "");
    row("rows of anything", "width/gap", "",
        QJsonArray({1, QJsonObject(), key("x"), QJsonArray({1}), Setups::row("9.5m", "garbage")}),
        "table", "/ / / / 9.5m/garbage");
}

void TestEditorShowsSetup::appliesOneMember()
{
    QFETCH(QByteArray, member);
    QFETCH(QByteArray, inner);
    QFETCH(QJsonValue, value);
    QFETCH(QByteArray, changes);
    QFETCH(QByteArray, to);
    QFETCH(QStringList, warnings);
    inEditor([&](const EditorHost& host) {
        auto expected = everything(host);
        expected[QString::fromLatin1(changes)] = QString::fromLatin1(to);
        SetupFiles::openPulses(host,
                               changed(newPulses(), member.constData(), inner.constData(), value));
        QCOMPARE(everything(host), expected);
        QCOMPARE(EditorHost::record().warnings, warnings);
    });
}

void TestEditorShowsSetup::appliesInOrder()
{
    QJsonObject pulses = changed(withLevels(newPulses(), 12, 1), "pulse numbers", "value", 99);
    pulses = changed(pulses, "trigger delay", "value", 7);
    pulses = withLoad(changed(pulses, "trigger timer", "value", 501), 10000);
    inEditor([&](const EditorHost& host) {
        SetupFiles::openPulses(host, pulses);
        QCOMPARE(
            EditorHost::record().warnings,
            QStringList({outOfRange("99", "2", "30"), outOfRange("6", "-1.249", "5"),
                         outOfRange("-6", "-5", "1.249"), outOfRange("7", "-1.249", "5"),
                         outOfRange("7", "1e-06", "0.00015"), outOfRange("501", "2e-06", "500")}));
        QCOMPARE(levels(host), QStringLiteral("5.0000 -5.0000"));
    });
}

void TestEditorShowsSetup::amplitudeComesWithTheOffsetBefore()
{
    inEditor([](const EditorHost& host) {
        SetupFiles::openPulses(host, withLevels(newPulses(), 2, 1));
        QCOMPARE(EditorHost::record().warnings, QStringList());
        SetupFiles::openPulses(host, withLevels(newPulses(), 9, 0));
        QCOMPARE(EditorHost::record().warnings, QStringList(outOfRange("5.5", "0.001", "5")));
        QCOMPARE(levels(host), QStringLiteral("4.5000 -4.5000"));
    });
}

void TestEditorShowsSetup::logsWhatItApplies()
{
    inEditor([](const EditorHost& host) {
        const int before = LogCapture::messages().size();
        SetupFiles::openPulses(host, changed(newPulses(), "pulse numbers", "value", 3));
        const QStringList lines = LogCapture::messages().mid(before);
        const int first = lines.indexOf(
            QStringLiteral("info: updateAllComponentsDisplay fileName "
                           "\"/mnt/user-data/.app/libDoublePulsePluginPics/m_.png\""));
        const int second =
            lines.indexOf(QStringLiteral("info: updateAllComponentsDisplay #AMPOFF"));
        const auto indexOf = [&](const char* start) {
            return lines.indexOf(
                QRegularExpression(QStringLiteral("^warning: %1.*").arg(key(start)),
                                   QRegularExpression::DotMatchesEverythingOption));
        };
        const int amplitude = indexOf("MultiPulseEditorPrivate::util_amplitudeChanged");
        const int offset = indexOf("util_offsetChanged");
        QVERIFY(first >= 0);
        QCOMPARE(second, first + 1);
        QVERIFY(amplitude > second);
        QVERIFY(offset > amplitude);
    });
}

void TestEditorShowsSetup::showsThePictureOfTheCount_data()
{
    QTest::addColumn<QJsonValue>("count");
    QTest::addColumn<QString>("picture");
    QTest::newRow("two") << QJsonValue(2) << key("d_.png");
    QTest::newRow("three") << QJsonValue(3) << key("m_.png");
    QTest::newRow("too many") << QJsonValue(1000) << key("m_.png");
    QTest::newRow("too few") << QJsonValue(-3) << key("d_.png");
    QTest::newRow("no number") << QJsonValue(key("3")) << key("d_.png");
}

void TestEditorShowsSetup::showsThePictureOfTheCount()
{
    QFETCH(QJsonValue, count);
    QFETCH(QString, picture);
    QVERIFY(InstalledContent::install());
    inEditor([&](const EditorHost& host) {
        // A picture with a mark, of the other kind.
        SetupFiles::openPulses(host, changed(newPulses(), "pulse numbers", "value",
                                             picture == QLatin1String("d_.png") ? 5 : 2));
        FrontPanel::tap(host.delay()->focusProxy());
        SetupFiles::openPulses(host, changed(newPulses(), "pulse numbers", "value", count));
        const QImage expected(InstalledContent::PictureFolder + picture);
        QVERIFY(!expected.isNull());
        const QPixmap shown = host.thumbnail()->pixmap(Qt::ReturnByValue);
        QCOMPARE(shown.toImage().convertToFormat(QImage::Format_ARGB32),
                 expected.convertToFormat(QImage::Format_ARGB32));
    });
}

void TestEditorShowsSetup::keepsAChoiceThatIsRefused_data()
{
    QTest::addColumn<QJsonValue>("stored");
    QTest::addColumn<int>("source");
    QTest::addColumn<int>("slope");
    QTest::newRow("negative") << QJsonValue(-1) << 1 << 1;
    QTest::newRow("two") << QJsonValue(2) << 2 << 1;
    QTest::newRow("three") << QJsonValue(3) << 1 << 1;
    QTest::newRow("one behind 16 bits") << QJsonValue(65536) << 1 << 1;
    QTest::newRow("zero in 16 bits") << QJsonValue(131072) << 1 << 1;
    QTest::newRow("huge") << QJsonValue(1e9) << 1 << 1;
    QTest::newRow("beyond 32 bits") << QJsonValue(1e10) << 0 << 0;
    QTest::newRow("text") << QJsonValue(key("text")) << 0 << 0;
    QTest::newRow("fraction") << QJsonValue(1.5) << 0 << 0;
    QTest::newRow("true") << QJsonValue(true) << 0 << 0;
    QTest::newRow("null") << QJsonValue() << 0 << 0;
}

void TestEditorShowsSetup::keepsAChoiceThatIsRefused()
{
    QFETCH(QJsonValue, stored);
    QFETCH(int, source);
    QFETCH(int, slope);
    inEditor([&](const EditorHost& host) {
        const auto both = [](const QJsonValue& value) {
            return changed(changed(newPulses(), "trigger source", "", value), "trigger slope", "",
                           value);
        };
        SetupFiles::openPulses(host, both(1));
        QCOMPARE(page(host), QStringLiteral("1"));
        SetupFiles::openPulses(host, both(stored));
        QCOMPARE(int(host.source()->get()), source);
        QCOMPARE(page(host), QString::number(source));
        QCOMPARE(int(host.slope()->get()), slope);
        QCOMPARE(EditorHost::record().warnings, QStringList());
    });
}

void TestEditorShowsSetup::choosesTheLoad_data()
{
    QTest::addColumn<QJsonValue>("stored");
    QTest::addColumn<int>("load");
    QTest::newRow("none") << QJsonValue(0) << 0;
    QTest::newRow("negative") << QJsonValue(-10000) << 0;
    QTest::newRow("75") << QJsonValue(75) << 0;
    QTest::newRow("100") << QJsonValue(100) << 0;
    QTest::newRow("101") << QJsonValue(101) << 1;
    QTest::newRow("10000") << QJsonValue(10000) << 1;
    QTest::newRow("huge") << QJsonValue(1e9) << 1;
    QTest::newRow("beyond 32 bits") << QJsonValue(1e10) << 0;
    QTest::newRow("fraction") << QJsonValue(100.5) << 0;
    QTest::newRow("text") << QJsonValue(key("10000")) << 0;
}

void TestEditorShowsSetup::choosesTheLoad()
{
    QFETCH(QJsonValue, stored);
    QFETCH(int, load);
    inEditor([&](const EditorHost& host) {
        SetupFiles::openPulses(host, withLoad(newPulses(), load == 0 ? 10000 : 50));
        SetupFiles::openPulses(host, withLoad(newPulses(), stored));
        QCOMPARE(int(host.load()->get()), load);
        QCOMPARE(SetupFiles::shown(host), withLoad(newPulses(), load == 0 ? 50 : 10000));
        QCOMPARE(limits(host.highLevel()), load == 0 ? QStringLiteral("-1.2490 to 5.0000")
                                                     : QStringLiteral("-1.2480 to 10.0000"));
        QCOMPARE(limits(host.lowLevel()), load == 0 ? QStringLiteral("-5.0000 to 1.2490")
                                                    : QStringLiteral("-10.0000 to 1.2480"));
    });
}

void TestEditorShowsSetup::highZWidensTheLimits()
{
    inEditor([](const EditorHost& host) {
        SetupFiles::openPulses(host, withLoad(withLevels(newPulses(), 3, 0.5), 10000));
        QCOMPARE(levels(host), QStringLiteral("2.0000 -1.0000"));
        QCOMPARE(limits(host.highLevel()), QStringLiteral("-0.9980 to 10.0000"));
        QCOMPARE(limits(host.lowLevel()), QStringLiteral("-10.0000 to 1.9980"));
    });
}

void TestEditorShowsSetup::highZWidensFreshLimitsEachTime()
{
    inEditor([](const EditorHost& host) {
        const QJsonObject pulses = withLoad(withLevels(newPulses(), 3, 0.5), 10000);
        for (int time = 0; time < 3; ++time) {
            SetupFiles::openPulses(host, pulses);
            QCOMPARE(limits(host.highLevel()), QStringLiteral("-0.9980 to 10.0000"));
            QCOMPARE(limits(host.lowLevel()), QStringLiteral("-10.0000 to 1.9980"));
            QCOMPARE(SetupFiles::shown(host), pulses);
        }
    });
}

void TestEditorShowsSetup::fiftyOhmsHalvesNothing()
{
    inEditor([](const EditorHost& host) {
        const QJsonObject pulses = withLevels(newPulses(), 3, 0.5);
        SetupFiles::openPulses(host, withLoad(pulses, 10000));
        SetupFiles::openPulses(host, pulses);
        QCOMPARE(levels(host), QStringLiteral("2.0000 -1.0000"));
        QCOMPARE(limits(host.highLevel()), QStringLiteral("-0.9990 to 5.0000"));
        QCOMPARE(limits(host.lowLevel()), QStringLiteral("-5.0000 to 1.9990"));
        QCOMPARE(SetupFiles::shown(host), pulses);
    });
}

void TestEditorShowsSetup::loadOfAFileIsTheOneThatIsChosen()
{
    inEditor([](const EditorHost& host) {
        SetupFiles::openPulses(host, withLoad(withLevels(newPulses(), 3, 0.5), 10000));
        host.choose(host.load(), 1);
        QCOMPARE(levels(host), QStringLiteral("2.0000 -1.0000"));
        host.choose(host.load(), 0);
        QCOMPARE(levels(host), QStringLiteral("1.0000 -0.5000"));

        SetupFiles::openPulses(host, withLevels(newPulses(), 3, 0.5));
        host.choose(host.load(), 1);
        QCOMPARE(levels(host), QStringLiteral("4.0000 -2.0000"));
    });
}

void TestEditorShowsSetup::rowsNeedNotMatchTheCount_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("rowCount");
    QTest::newRow("fewer rows") << 5 << 2;
    QTest::newRow("more rows") << 2 << 5;
    QTest::newRow("no row") << 4 << 0;
    QTest::newRow("more rows than pulses are allowed") << 30 << 31;
}

void TestEditorShowsSetup::rowsNeedNotMatchTheCount()
{
    QFETCH(int, count);
    QFETCH(int, rowCount);
    inEditor([&](const EditorHost& host) {
        const QJsonObject pulses = changed(changed(newPulses(), "pulse numbers", "value", count),
                                           "width/gap", "", rows(rowCount));
        SetupFiles::openPulses(host, pulses);
        QCOMPARE(host.count()->get(), double(count));
        QCOMPARE(host.table()->model()->rowCount(), rowCount);
        QCOMPARE(SetupFiles::shown(host), pulses);
        host.enter(host.count(), QStringLiteral("3"));
        QCOMPARE(host.table()->model()->rowCount(), 3);
        QCOMPARE(EditorHost::record().warnings, QStringList());
    });
}

void TestEditorShowsSetup::endsCommonGaps()
{
    inEditor([](const EditorHost& host) {
        const auto gapFlags = [&] { return host.table()->model()->index(1, 1).flags(); };
        setGapMode(host, 1);
        QVERIFY(!(gapFlags() & Qt::ItemIsEnabled));
        SetupFiles::openPulses(host, newPulses());
        QVERIFY(gapFlags() & Qt::ItemIsEnabled);
        QAbstractItemModel* model = host.table()->model();
        model->setData(model->index(0, 1), QStringLiteral("20.000u"));
        QCOMPARE(tableText(host), QStringLiteral("2.000u/20.000u 2.000u/10.000u"));
    });
}

QTEST_MAIN(TestEditorShowsSetup)
#include "test_editorshowssetup.moc"
