// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "parameteredit.h"

#include "numericeditor.h"

#include <QtTest>

namespace {

using Keys = QVector<int>;
using Reports = QVector<long long>;

enum Focus { Stays, Goes };

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

QString nameOf(int key)
{
    switch (key) {
    case QT_KEY_GN:
        return text("GN");
    case QT_KEY_MU:
        return text("MU");
    case QT_KEY_KM:
        return text("KM");
    case QT_KEY_KNOB:
        return text("KNOB");
    case QT_KEY_X1:
        return text("X1");
    case QT_KEY_MINUS:
        return text("MINUS");
    case QT_KEY_HELP:
        return text("HELP");
    default:
        return QKeySequence(key).toString();
    }
}

/// Every key that the editor knows, and one that it does not.
Keys everyKey()
{
    Keys keys;
    for (int key = Qt::Key_0; key <= Qt::Key_9; ++key)
        keys.append(key);
    keys += {Qt::Key_Minus, QT_KEY_MINUS,   Qt::Key_Period, Qt::Key_Backspace, Qt::Key_Delete,
             Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Up,     Qt::Key_Down,      Qt::Key_Cancel,
             QT_KEY_GN,     QT_KEY_MU,      QT_KEY_KM,      QT_KEY_X1,         QT_KEY_KNOB,
             Qt::Key_Enter, Qt::Key_Return, QT_KEY_HELP};
    return keys;
}

/// A kind of quantity with the value 5 at a resolution of its own.
struct Family
{
    const char* name;
    int type;
    double value;
    double resolution;
};

const Family Families[] = {
    {"plain", UNIT_EMPTY, 5, 1},        {"frequency", UNIT_FREQUENCY, 5, 1e-6},
    {"time", UNIT_TIME, 5, 1e-12},      {"percent", UNIT_PERCENT, 5, 1e-2},
    {"rate", UNIT_RATE, 5e9, 1},        {"phase", UNIT_PHASE, 5, 1e-3},
    {"voltage", UNIT_VOLTAGE, 5, 1e-4}, {"points", UNIT_POINTS, 5, 1},
};

} // namespace

/// Each key in each state of the editor.
class TestParameterEditKeys : public QObject
{
    Q_OBJECT

private slots:
    void idle_data();
    void idle();
    void typing_data();
    void typing();
    void disabled_data();
    void disabled();
    void disabledBetweenKeyAndUnit();
    void elsewhere_data();
    void elsewhere();
    void unitKeysOfFamily_data();
    void unitKeysOfFamily();
    void signOfFamily_data();
    void signOfFamily();
};

namespace {

void addColumns()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QVector<int>>("underlined");
    QTest::addColumn<Reports>("reports");
    QTest::addColumn<int>("focus");
    QTest::addColumn<QVector<int>>("pressed");
    QTest::addColumn<QVector<int>>("released");
}

void addRow(int key, const QString& shown, const Keys& underlined, const Reports& reports,
            Focus focus, const Keys& pressed, const Keys& released)
{
    QTest::newRow(qPrintable(nameOf(key)))
        << key << shown << underlined << reports << int(focus) << pressed << released;
}

void pressAndCompare(NumericEditor& numeric)
{
    QFETCH(int, key);
    QFETCH(int, focus);

    FrontPanel::press(key);
    QTEST(numeric.shown(), "shown");
    QTEST(numeric.underlined(), "underlined");
    QTEST(numeric.reports(), "reports");
    QCOMPARE(numeric.digits()->hasFocus(), focus == Stays);
    QCOMPARE(numeric.form.hasFocus(), focus == Goes);
    QTEST(numeric.form.pressed, "pressed");
    QTEST(numeric.form.released, "released");
}

} // namespace

void TestParameterEditKeys::idle_data()
{
    addColumns();
    const auto starts = [](int key, const char* shown) {
        addRow(key, text(shown), {}, {}, Stays, {}, {});
    };
    for (int key = Qt::Key_0; key <= Qt::Key_9; ++key)
        addRow(key, QString(QChar(key)), {}, {}, Stays, {}, {});
    starts(Qt::Key_Minus, "-");
    starts(QT_KEY_MINUS, "-");
    starts(Qt::Key_Period, ".");
    starts(Qt::Key_Backspace, "");
    starts(Qt::Key_Delete, "");
    addRow(Qt::Key_Left, text("5.0000"), {0}, {}, Stays, {}, {});
    addRow(Qt::Key_Right, text("5.0000"), {3}, {}, Stays, {}, {});
    addRow(Qt::Key_Up, text("5.1000"), {2}, {51000}, Stays, {}, {Qt::Key_Up});
    addRow(Qt::Key_Down, text("4.9000"), {2}, {49000}, Stays, {}, {Qt::Key_Down});
    addRow(Qt::Key_Cancel, text("5.0000"), {2}, {}, Stays, {Qt::Key_Cancel}, {});
    for (int key : {int(QT_KEY_GN), int(QT_KEY_MU), int(QT_KEY_KM), int(QT_KEY_X1),
                    int(QT_KEY_KNOB), int(Qt::Key_Return)})
        addRow(key, text("5.0000"), {}, {}, Goes, {key}, {});
    addRow(Qt::Key_Enter, text("5.0000"), {}, {}, Goes, {}, {});
    addRow(QT_KEY_HELP, text("5.0000"), {2}, {}, Stays, {QT_KEY_HELP}, {QT_KEY_HELP});
}

void TestParameterEditKeys::idle()
{
    NumericEditor numeric(UNIT_VOLTAGE, 5, 1e-4);
    numeric.focusOn(2);
    pressAndCompare(numeric);
}

void TestParameterEditKeys::typing_data()
{
    addColumns();
    const auto edits = [](int key, const char* shown) {
        addRow(key, text(shown), {}, {}, Stays, {}, {});
    };
    for (int key = Qt::Key_0; key <= Qt::Key_9; ++key)
        addRow(key, text("12") + QChar(key), {}, {}, Stays, {}, {});
    edits(Qt::Key_Minus, "-12");
    edits(QT_KEY_MINUS, "-12");
    edits(Qt::Key_Period, "12.");
    edits(Qt::Key_Backspace, "1");
    edits(Qt::Key_Delete, "12");
    edits(Qt::Key_Left, "12");
    edits(Qt::Key_Right, "12");
    addRow(Qt::Key_Up, text("12"), {}, {}, Stays, {}, {Qt::Key_Up});
    addRow(Qt::Key_Down, text("12"), {}, {}, Stays, {}, {Qt::Key_Down});
    addRow(Qt::Key_Cancel, text("5.0000"), {0}, {}, Stays, {Qt::Key_Cancel}, {});
    for (int key : {int(QT_KEY_GN), int(QT_KEY_MU)})
        addRow(key, text("5.0000"), {}, {}, Goes, {key}, {});
    addRow(QT_KEY_KM, text("12.0m"), {}, {120}, Goes, {QT_KEY_KM}, {});
    for (int key : {int(QT_KEY_X1), int(QT_KEY_KNOB), int(Qt::Key_Return)})
        addRow(key, text("12.0000"), {}, {120000}, Goes, {key}, {});
    addRow(Qt::Key_Enter, text("5.0000"), {}, {}, Goes, {}, {});
    addRow(QT_KEY_HELP, text("12"), {}, {}, Stays, {QT_KEY_HELP}, {QT_KEY_HELP});
}

void TestParameterEditKeys::typing()
{
    NumericEditor numeric(UNIT_VOLTAGE, 5, 1e-4);
    numeric.focusOn(2);
    FrontPanel::type(text("12"));
    pressAndCompare(numeric);
}

void TestParameterEditKeys::disabled_data()
{
    QTest::addColumn<int>("key");
    for (int key : everyKey())
        QTest::newRow(qPrintable(nameOf(key))) << key;
}

// The first press is on its way to the digits when they are disabled.
void TestParameterEditKeys::disabled()
{
    QFETCH(int, key);

    for (bool typing : {false, true}) {
        NumericEditor numeric(UNIT_VOLTAGE, 5, 1e-4);
        numeric.focusOn(2);
        if (typing)
            FrontPanel::type(text("12"));
        FrontPanel::post(QEvent::KeyPress, key);
        FrontPanel::post(QEvent::KeyRelease, key);
        numeric.editor->setDisable(true);
        FrontPanel::settle();
        FrontPanel::press(key);
        QCOMPARE(numeric.shown(), text("5.0000"));
        QCOMPARE(numeric.editor->getValue(), 50000LL);
        QVERIFY(!numeric.editor->isTyping());
        QCOMPARE(numeric.valueSet.count(), 0);
        QVERIFY(numeric.underlined().isEmpty());

        numeric.editor->setDisable(false);
        numeric.focusOn(2);
        FrontPanel::knob(1);
        QCOMPARE(numeric.reports(), Reports{51000});
    }
}

void TestParameterEditKeys::disabledBetweenKeyAndUnit()
{
    NumericEditor numeric(UNIT_VOLTAGE, 5, 1e-4);
    numeric.focusOn(2);
    FrontPanel::type(text("12"));
    QKeyEvent release(QEvent::KeyRelease, QT_KEY_X1, Qt::NoModifier);
    QCoreApplication::sendEvent(numeric.digits(), &release);
    numeric.editor->setDisable(true);
    FrontPanel::settle();
    QCOMPARE(numeric.shown(), text("5.0000"));
    QCOMPARE(numeric.valueSet.count(), 0);
    QVERIFY(!numeric.digits()->hasFocus());
}

void TestParameterEditKeys::elsewhere_data()
{
    disabled_data();
}

void TestParameterEditKeys::elsewhere()
{
    QFETCH(int, key);

    NumericEditor numeric(UNIT_VOLTAGE, 5, 1e-4);
    FrontPanel::press(key);
    QCOMPARE(numeric.form.pressed, Keys{key});
    FrontPanel::tap(numeric.other->textEdit()->viewport());
    FrontPanel::press(key);
    QCOMPARE(numeric.shown(), text("5.0000"));
    QVERIFY(!numeric.editor->isTyping());
    QCOMPARE(numeric.valueSet.count(), 0);
    QCOMPARE(numeric.focusIn.count(), 0);
}

void TestParameterEditKeys::unitKeysOfFamily_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("cancels");

    const int keys[] = {QT_KEY_GN, QT_KEY_MU, QT_KEY_KM, QT_KEY_X1, QT_KEY_KNOB, Qt::Key_Return};
    // A null text stands for a key that cancels.
    const char* const shown[][6] = {
        {nullptr, nullptr, "7.000k", "7", "7", "7"},
        {"7.000000000000000G", "7.000000000000M", "7.000000000k", "7.000000", "7.000000",
         "7.000000"},
        {"7.000n", "7.000000u", "7.000000000m", "7.000000000000", "7.000000000000",
         "7.000000000000"},
        {nullptr, nullptr, nullptr, "7.00", "7.00", "7.00"},
        {"7.000000000G", nullptr, nullptr, "7.000000000G", "7.000000000G", "7.000000000G"},
        {nullptr, nullptr, nullptr, "7.000", "7.000", "7.000"},
        {nullptr, nullptr, "7.0m", "7.0000", "7.0000", "7.0000"},
        {nullptr, "7.000000M", "7.000k", "7", "7", "7"},
    };
    for (int family = 0; family < 8; ++family) {
        for (int i = 0; i < 6; ++i)
            QTest::addRow("%s by %s", Families[family].name, qPrintable(nameOf(keys[i])))
                << family << keys[i] << text(shown[family][i]) << (shown[family][i] == nullptr);
    }
}

void TestParameterEditKeys::unitKeysOfFamily()
{
    QFETCH(int, family);
    QFETCH(int, key);
    QFETCH(QString, shown);
    QFETCH(bool, cancels);

    const Family& kind = Families[family];
    NumericEditor numeric(static_cast<ENUM_UNIT_TYPE>(kind.type), kind.value, kind.resolution);
    const QString before = numeric.shown();
    const long long held = numeric.editor->getValue();
    numeric.focusOn(0);
    FrontPanel::type(text("7"));
    FrontPanel::press(key);
    QCOMPARE(numeric.shown(), cancels ? before : shown);
    QCOMPARE(numeric.editor->getValue() == held, cancels);
    QCOMPARE(numeric.reports().size(), cancels ? 0 : 1);
    QVERIFY(numeric.form.hasFocus());
}

void TestParameterEditKeys::signOfFamily_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("key");
    for (int family = 0; family < 8; ++family) {
        for (int key : {int(Qt::Key_Minus), int(QT_KEY_MINUS)})
            QTest::addRow("%s by %s", Families[family].name, qPrintable(nameOf(key)))
                << family << key;
    }
}

void TestParameterEditKeys::signOfFamily()
{
    QFETCH(int, family);
    QFETCH(int, key);

    const Family& kind = Families[family];
    const bool negative = kind.type == UNIT_VOLTAGE;
    NumericEditor numeric(static_cast<ENUM_UNIT_TYPE>(kind.type), kind.value, kind.resolution);
    const QString before = numeric.shown();
    numeric.focusOn(0);
    FrontPanel::press(key);
    QCOMPARE(numeric.shown(), negative ? text("-") : before);
    QCOMPARE(numeric.editor->isTyping(), negative);

    FrontPanel::press(Qt::Key_Cancel);
    FrontPanel::type(text("7"));
    FrontPanel::press(key);
    QCOMPARE(numeric.digits()->toPlainText(), negative ? text("-7") : text("7"));
}

QTEST_MAIN(TestParameterEditKeys)
#include "test_parameteredit_keys.moc"
