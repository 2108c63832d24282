// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "ccombobox.h"

#include "toolkitform.h"

#include <QAbstractItemView>
#include <QSignalSpy>
#include <QtTest>

using appPlugins::CComboBox;

namespace {

/// A parent that notes the mouse and key events that its child leaves to it.
class Below : public QWidget
{
public:
    using QWidget::QWidget;
    QVector<int> types;
    QVector<int> keys;

protected:
    void mousePressEvent(QMouseEvent* event) override { types.append(event->type()); }
    void mouseMoveEvent(QMouseEvent* event) override { types.append(event->type()); }
    void mouseReleaseEvent(QMouseEvent* event) override { types.append(event->type()); }
    void keyPressEvent(QKeyEvent* event) override { keys.append(event->key()); }
};

struct Choice
{
    Choice()
        : below(form.add(new Below(&form)))
        , combo(new CComboBox(below))
    {
        combo->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        combo->setGeometry(0, 0, 200, 40);
        form.start();
    }

    bool isOpen() const { return combo->view()->isVisible(); }

    ToolkitForm form;
    Below* below;
    CComboBox* combo;
};

} // namespace

class TestCComboBox : public QObject
{
    Q_OBJECT

private slots:
    void hasLook();
    void liftedFingerOpensList();
    void itemIsChosenByFinger();
    void keysGoToParent();
    void disabledStaysClosed();
};

void TestCComboBox::hasLook()
{
    const Choice choice;
    QCOMPARE(choice.combo->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(choice.combo->font().pixelSize(), 16);
    const QString style = choice.combo->styleSheet();
    QVERIFY(!style.contains(QLatin1Char('%')));
    QVERIFY(style.startsWith(QStringLiteral(
        "QComboBox {padding: 2px 2px 2px 40px;color:rgb(255,255,255); "
        "background-color:#2e2e2e; border-radius: 0px;border:2px solid rgb(255,255,255); }")));
    QVERIFY(style.contains(
        QStringLiteral("QComboBox:!editable:focus{border:2px solid rgb(52,120,247);  }")));
    QVERIFY(style.contains(QStringLiteral("/mnt/user-data/.app/appPluginsPics/arrow.png")));
    QVERIFY(style.contains(QStringLiteral("/mnt/user-data/.app/appPluginsPics/arrow_d.png")));
    QVERIFY(style.contains(
        QStringLiteral("background:rgb(30,30,30);selection-background-color: rgb(52,120,247)")));
}

void TestCComboBox::liftedFingerOpensList()
{
    Choice choice;
    QWindow* window = choice.form.windowHandle();
    const QPoint point = FrontPanel::inWindow(choice.combo, QPoint(100, 20));
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, point);
    QVERIFY(!choice.isOpen());
    QVERIFY(choice.combo->hasFocus());
    QTest::mouseMove(window, point + QPoint(3, 0));
    QVERIFY(!choice.isOpen());
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, point + QPoint(3, 0));
    QVERIFY(choice.isOpen());
    QCOMPARE(choice.below->types, (QVector<int>{QEvent::MouseButtonPress, QEvent::MouseMove,
                                                QEvent::MouseButtonRelease}));
}

void TestCComboBox::itemIsChosenByFinger()
{
    Choice choice;
    QSignalSpy changed(choice.combo, QOverload<int>::of(&CComboBox::currentIndexChanged));
    FrontPanel::tap(choice.combo);
    QVERIFY(choice.isOpen());
    QAbstractItemView* view = choice.combo->view();
    QTRY_VERIFY(view->window()->windowHandle()->isExposed());
    // A tap that opens the list is no choice within the double-click time.
    QTRY_VERIFY_WITH_TIMEOUT(
        (FrontPanel::tap(view->viewport(), view->visualRect(view->model()->index(2, 0)).center()),
         !choice.isOpen()),
        5000);
    QCOMPARE(choice.combo->currentIndex(), 2);
    QCOMPARE(changed.count(), 1);
}

void TestCComboBox::keysGoToParent()
{
    Choice choice;
    choice.combo->setFocus();
    for (int key : {int(Qt::Key_Down), int(Qt::Key_Up), int(Qt::Key_B), int(Qt::Key_Space),
                    int(QT_KEY_HOME), int(QT_KEY_KNOB)})
        FrontPanel::press(key);
    QCOMPARE(choice.combo->currentIndex(), 0);
    QVERIFY(!choice.isOpen());
    QCOMPARE(choice.below->keys, (QVector<int>{Qt::Key_Down, Qt::Key_Up, Qt::Key_B, Qt::Key_Space,
                                               QT_KEY_HOME, QT_KEY_KNOB}));
}

void TestCComboBox::disabledStaysClosed()
{
    Choice choice;
    choice.combo->setDisabled(true);
    FrontPanel::tap(choice.combo);
    QVERIFY(!choice.isOpen());
}

QTEST_MAIN(TestCComboBox)
#include "test_ccombobox.moc"
