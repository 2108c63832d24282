// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "breadcrumb.h"

#include "frontpanel.h"

#include <QAbstractButton>
#include <QSignalSpy>

using namespace HostDialogs;

namespace {

QVector<QAbstractButton*> crumbs(const Breadcrumb& way)
{
    QVector<QAbstractButton*> buttons;
    for (auto* button : way.findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->objectName().isEmpty())
            buttons.append(button);
    }
    std::sort(buttons.begin(), buttons.end(),
              [](const QWidget* one, const QWidget* other) { return one->x() < other->x(); });
    return buttons;
}

QStringList texts(const Breadcrumb& way)
{
    QStringList list;
    for (const auto* button : crumbs(way))
        list.append(button->text());
    return list;
}

} // namespace

class TestBreadcrumb : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheWay();
    void goesToEveryDepth();
    void dropsTheUpperFoldersFirst();
    void staysWithinItsWidth();
};

void TestBreadcrumb::showsTheWay()
{
    Breadcrumb way(nullptr);
    way.resize(700, 44);
    way.show();
    way.setParts({QStringLiteral("a"), QStringLiteral("b\nc")});
    FrontPanel::settle();
    QCOMPARE(texts(way), QStringList({QStringLiteral("HOSTID_DLG_USER_DATA"), QStringLiteral("a"),
                                      QStringLiteral("b\uFFFDc")}));
    QVERIFY(way.findChild<QAbstractButton*>(QStringLiteral("up"))->isEnabled());
    way.setParts({});
    FrontPanel::settle();
    QCOMPARE(texts(way).size(), 1);
    QVERIFY(!way.findChild<QAbstractButton*>(QStringLiteral("up"))->isEnabled());
}

void TestBreadcrumb::goesToEveryDepth()
{
    Breadcrumb way(nullptr);
    way.resize(700, 44);
    way.show();
    way.setParts({QStringLiteral("a"), QStringLiteral("b")});
    FrontPanel::settle();
    QSignalSpy chosen(&way, &Breadcrumb::depthChosen);
    for (auto* button : crumbs(way))
        FrontPanel::tap(button);
    FrontPanel::tap(way.findChild<QAbstractButton*>(QStringLiteral("up")));
    FrontPanel::tap(way.findChild<QAbstractButton*>(QStringLiteral("home")));
    QVector<int> depths;
    for (const QList<QVariant>& arguments : chosen)
        depths.append(arguments.first().toInt());
    QCOMPARE(depths, QVector<int>({0, 1, 2, 1, 0}));
}

void TestBreadcrumb::dropsTheUpperFoldersFirst()
{
    Breadcrumb way(nullptr);
    way.resize(360, 44);
    way.show();
    way.setParts(
        {QStringLiteral("first folder"), QStringLiteral("second folder"), QStringLiteral("third")});
    FrontPanel::settle();
    QVERIFY(texts(way).size() < 4);
    QCOMPARE(texts(way).last(), QStringLiteral("third"));
    way.resize(790, 44);
    FrontPanel::settle();
    QCOMPARE(texts(way).size(), 4);
}

void TestBreadcrumb::staysWithinItsWidth()
{
    for (int depth = 0; depth < 30; ++depth) {
        Breadcrumb way(nullptr);
        way.resize(500, 44);
        way.show();
        QStringList parts;
        for (int i = 0; i < depth; ++i)
            parts.append(QString(1 + 37 * i % 90, QLatin1Char('w')));
        way.setParts(parts);
        FrontPanel::settle();
        QCOMPARE(way.width(), 500);
        for (const auto* button : crumbs(way))
            QVERIFY(way.rect().contains(button->geometry()));
        if (depth > 0)
            QCOMPARE(texts(way).last(), parts.last());
    }
}

QTEST_MAIN(TestBreadcrumb)

#include "test_breadcrumb.moc"
