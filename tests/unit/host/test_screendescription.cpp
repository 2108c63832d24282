// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "screendescription.h"
#include "screenstart.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QTableWidget>
#include <QTest>
#include <QTextBrowser>

namespace {

QStringList textsOf(const QVector<Keypad::ScreenItem>& items)
{
    QStringList texts;
    for (const Keypad::ScreenItem& item : items)
        texts.append(item.text);
    return texts;
}

Keypad::ScreenItem itemOf(const QString& text)
{
    for (const Keypad::ScreenItem& item : visibleTexts()) {
        if (item.text == text)
            return item;
    }
    return {};
}

Keypad::ScreenItem at(const char* text, const QRect& rect)
{
    Keypad::ScreenItem item;
    item.text = QLatin1String(text);
    item.rect = rect;
    return item;
}

} // namespace

class TestScreenDescription : public QObject
{
    Q_OBJECT

    ScreenStart m_screen;

private slots:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_window->setGeometry(0, 0, 600, 400);
    }

    void cleanup() { m_window.reset(); }

    void tellsPlaceRoleAndState()
    {
        auto* label = add<QLabel>(QRect(10, 10, 100, 20));
        label->setText(QStringLiteral("A label"));
        auto* button = add<QPushButton>(QRect(10, 40, 100, 40));
        button->setText(QStringLiteral("&Press"));
        button->setEnabled(false);
        auto* check = add<QCheckBox>(QRect(10, 90, 100, 40));
        check->setText(QStringLiteral("Checked"));
        check->setChecked(true);
        auto* edit = add<QLineEdit>(QRect(10, 140, 100, 30));
        edit->setText(QStringLiteral("12.5"));
        auto* choice = add<QComboBox>(QRect(10, 180, 100, 30));
        choice->addItems({QStringLiteral("first"), QStringLiteral("second")});
        choice->setCurrentIndex(1);
        show();
        edit->setFocus();

        QCOMPARE(textsOf(visibleTexts()),
                 QStringList({QStringLiteral("A label"), QStringLiteral("Press"),
                              QStringLiteral("Checked"), QStringLiteral("12.5"),
                              QStringLiteral("second")}));
        QCOMPARE(itemOf(QStringLiteral("A label")).rect, QRect(10, 10, 100, 20));
        QCOMPARE(itemOf(QStringLiteral("A label")).role, QStringLiteral("text"));
        QCOMPARE(itemOf(QStringLiteral("Press")).role, QStringLiteral("button"));
        QVERIFY(!itemOf(QStringLiteral("Press")).enabled);
        QVERIFY(itemOf(QStringLiteral("Checked")).checked);
        QVERIFY(itemOf(QStringLiteral("12.5")).focus);
        QVERIFY(!itemOf(QStringLiteral("second")).focus);
        QCOMPARE(itemOf(QStringLiteral("second")).role, QStringLiteral("choice"));
    }

    void leavesOutWhatNobodySees()
    {
        add<QLabel>(QRect(10, 10, 100, 20))->setText(QStringLiteral("covered"));
        auto* cover = add<QWidget>(QRect(0, 0, 120, 40));
        cover->setAutoFillBackground(true);
        add<QLabel>(QRect(-80, 50, 100, 20))->setText(QStringLiteral("outside"));
        QLabel* hidden = add<QLabel>(QRect(10, 80, 100, 20));
        hidden->setText(QStringLiteral("hidden"));
        add<QLabel>(QRect(10, 110, 100, 20));
        add<QLabel>(QRect(10, 140, 100, 20))->setText(QStringLiteral("seen"));
        hidden->hide();
        m_window->show();
        hidden->hide();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QCOMPARE(textsOf(visibleTexts()), QStringList(QStringLiteral("seen")));
    }

    void tellsWhatLetsTouchesThrough()
    {
        auto* button = add<QPushButton>(QRect(10, 10, 200, 80));
        auto* note = new QLabel(QStringLiteral("note"), button);
        note->setAttribute(Qt::WA_TransparentForMouseEvents);
        note->setGeometry(10, 50, 180, 20);
        show();
        QCOMPARE(textsOf(visibleTexts()), QStringList(QStringLiteral("note")));
        QCOMPARE(itemOf(QStringLiteral("note")).rect, QRect(20, 60, 180, 20));
    }

    void tellsCellsInSight()
    {
        auto* table = new QTableWidget(30, 2, m_window.get());
        table->setGeometry(0, 0, 400, 200);
        for (int row = 0; row < 30; ++row) {
            for (int column = 0; column < 2; ++column)
                table->setItem(row, column,
                               new QTableWidgetItem(QStringLiteral("%1/%2").arg(row).arg(column)));
        }
        table->setHorizontalHeaderLabels({QStringLiteral("Width"), QStringLiteral("Gap")});
        show();
        QStringList texts = textsOf(visibleTexts());
        QCOMPARE(texts.mid(0, 5),
                 QStringList({QStringLiteral("Width"), QStringLiteral("Gap"), QStringLiteral("1"),
                              QStringLiteral("0/0"), QStringLiteral("0/1")}));
        QCOMPARE(itemOf(QStringLiteral("0/1")).role, QStringLiteral("cell"));
        QVERIFY(!texts.contains(QStringLiteral("29/0")));
        table->scrollToBottom();
        table->setCurrentCell(29, 1);
        table->setFocus();
        texts = textsOf(visibleTexts());
        QVERIFY(!texts.contains(QStringLiteral("0/0")));
        QVERIFY(itemOf(QStringLiteral("29/1")).focus);
        const Keypad::ScreenItem cell = itemOf(QStringLiteral("29/1"));
        QCOMPARE(table->itemAt(table->viewport()->mapFromGlobal(cell.rect.center()))->text(),
                 QStringLiteral("29/1"));
    }

    void tellsOfALongTextTheLinesInSight()
    {
        auto* page = new QTextBrowser(m_window.get());
        page->setGeometry(0, 0, 300, 100);
        QStringList lines;
        for (int i = 0; i < 50; ++i)
            lines.append(QStringLiteral("line %1").arg(i));
        page->setPlainText(lines.join(QLatin1Char('\n')));
        show();
        const QStringList seen = textsOf(visibleTexts());
        QVERIFY2(seen.size() > 2 && seen.size() < 10, qPrintable(seen.join(QLatin1Char('|'))));
        QCOMPARE(seen, QStringList(lines.mid(0, seen.size())));
    }

    void scrolledAwayIsNotTold()
    {
        auto* area = new QScrollArea(m_window.get());
        area->setGeometry(0, 0, 200, 100);
        auto* content = new QWidget;
        content->resize(180, 1000);
        auto* top = new QLabel(QStringLiteral("top"), content);
        top->setGeometry(0, 0, 100, 20);
        auto* bottom = new QLabel(QStringLiteral("bottom"), content);
        bottom->setGeometry(0, 900, 100, 20);
        bottom->setAttribute(Qt::WA_TransparentForMouseEvents);
        area->setWidget(content);
        show();
        QCOMPARE(textsOf(visibleTexts()), QStringList(QStringLiteral("top")));
    }

    void topmostWindowDecides()
    {
        add<QLabel>(QRect(10, 10, 100, 20))->setText(QStringLiteral("below"));
        add<QLabel>(QRect(10, 300, 100, 20))->setText(QStringLiteral("beside"));
        show();
        QDialog dialog(m_window.get(), Qt::FramelessWindowHint | Qt::Dialog);
        dialog.setGeometry(0, 0, 600, 200);
        QLabel text(QStringLiteral("above"), &dialog);
        text.setGeometry(20, 20, 100, 20);
        dialog.show();
        dialog.raise();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QCOMPARE(textsOf(visibleTexts()),
                 QStringList({QStringLiteral("above"), QStringLiteral("beside")}));
    }

    void tellsListsAndMenusThatAreOpen()
    {
        auto* choice = add<QComboBox>(QRect(10, 10, 100, 30));
        choice->addItems({QStringLiteral("first"), QStringLiteral("second")});
        show();
        choice->showPopup();
        QTRY_COMPARE(itemOf(QStringLiteral("second")).role, QStringLiteral("cell"));
        choice->hidePopup();
        QTRY_VERIFY(itemOf(QStringLiteral("second")).text.isEmpty());

        QMenu menu;
        menu.addAction(QStringLiteral("Copy"));
        menu.addAction(QStringLiteral("Paste"))->setEnabled(false);
        menu.popup(QPoint(200, 200));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        QCOMPARE(itemOf(QStringLiteral("Copy")).role, QStringLiteral("menuitem"));
        QVERIFY(!itemOf(QStringLiteral("Paste")).enabled);
    }

    void readsLineByLine()
    {
        const auto order = textsOf(inReadingOrder({
            at("unit", QRect(200, 12, 20, 20)),
            at("second line", QRect(0, 60, 100, 20)),
            at("title", QRect(0, 15, 100, 20)),
            at("value", QRect(110, 10, 80, 30)),
            at("tall", QRect(300, 0, 50, 200)),
        }));
        QCOMPARE(order, QStringList({QStringLiteral("title"), QStringLiteral("value"),
                                     QStringLiteral("unit"), QStringLiteral("second line"),
                                     QStringLiteral("tall")}));
        QVERIFY(inReadingOrder({}).isEmpty());
    }

private:
    template<typename Widget>
    Widget* add(const QRect& place)
    {
        auto* widget = new Widget(m_window.get());
        widget->setGeometry(place);
        return widget;
    }

    void show()
    {
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    std::unique_ptr<QWidget> m_window;
};

QTEST_MAIN(TestScreenDescription)
#include "test_screendescription.moc"
