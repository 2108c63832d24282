// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "chorizontalslider.h"

#include "testtranslator.h"
#include "toolkitform.h"

#include <QSignalSpy>
#include <QSlider>
#include <QtTest>

using appPlugins::CHorizontalSlider;

namespace {

struct Switch
{
    Switch(int maximum, int value)
        : slider(form.add(new CHorizontalSlider(&form, 0, maximum, value)))
        , changed(slider, &CHorizontalSlider::valueChanged)
    {
        form.start();
    }

    QSlider* inner() const { return slider->findChild<QSlider*>(); }
    QString notice() const { return slider->findChild<QLabel*>()->text(); }

    ToolkitForm form;
    CHorizontalSlider* slider;
    QSignalSpy changed;
};

} // namespace

class TestCHorizontalSlider : public QObject
{
    Q_OBJECT

private slots:
    void notice_data();
    void notice();
    void setMovesAndReports();
    void fingerMoves();
    void disabledStays();
    void stretchAndStyle();
    void followsLanguage();
};

void TestCHorizontalSlider::notice_data()
{
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("off") << 1 << 0 << QStringLiteral("DBID_OFF");
    QTest::newRow("on") << 1 << 1 << QStringLiteral("DBID_ON");
    QTest::newRow("three positions") << 2 << 1 << QStringLiteral("1");
    QTest::newRow("hundred") << 100 << 42 << QStringLiteral("42");
    QTest::newRow("beyond the range") << 100 << 1000 << QStringLiteral("100");
}

void TestCHorizontalSlider::notice()
{
    QFETCH(int, maximum);
    QFETCH(int, value);

    const Switch first(maximum, value);
    QTEST(first.notice(), "text");
    QCOMPARE(first.slider->value(), qMin(maximum, value));
}

void TestCHorizontalSlider::setMovesAndReports()
{
    Switch on(1, 0);
    on.slider->set(1);
    QCOMPARE(on.notice(), QStringLiteral("DBID_ON"));
    QCOMPARE(on.changed.count(), 1);
    on.slider->set(1);
    QCOMPARE(on.changed.count(), 1);
    on.slider->set(0);
    QCOMPARE(on.notice(), QStringLiteral("DBID_OFF"));
    QCOMPARE(on.changed.count(), 2);
}

void TestCHorizontalSlider::fingerMoves()
{
    Switch hundred(100, 0);
    FrontPanel::tap(hundred.inner(),
                    QPoint(hundred.inner()->width() - 5, hundred.inner()->height() / 2));
    QVERIFY(hundred.slider->value() > 0);
    QCOMPARE(hundred.notice(), QString::number(hundred.slider->value()));
    QVERIFY(hundred.inner()->hasFocus());
    QCOMPARE(hundred.changed.last().first().toInt(), hundred.slider->value());
}

void TestCHorizontalSlider::disabledStays()
{
    Switch off(1, 0);
    off.slider->setDisabled(true);
    off.slider->set(1);
    FrontPanel::tap(off.inner(), QPoint(off.inner()->width() - 5, 10));
    QCOMPARE(off.slider->value(), 0);
    QCOMPARE(off.changed.count(), 0);
    off.slider->setDisabled(false);
    off.slider->set(1);
    QCOMPARE(off.slider->value(), 1);
}

void TestCHorizontalSlider::stretchAndStyle()
{
    const Switch on(1, 0);
    on.slider->setHorizontalLayoutStretch(1, 3);
    on.slider->layout()->activate();
    QVERIFY(on.slider->findChild<QLabel*>()->width() > on.inner()->width());
    on.slider->setStyleSheet(QStringLiteral("QSlider{color:red;}"));
    QCOMPARE(on.inner()->styleSheet(), QStringLiteral("QSlider{color:red;}"));
}

void TestCHorizontalSlider::followsLanguage()
{
    const Switch on(1, 1);
    const TestTranslator german(QStringLiteral("de:"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(on.notice(), QStringLiteral("de:DBID_ON"));
    on.slider->set(0);
    QCOMPARE(on.notice(), QStringLiteral("de:DBID_OFF"));
}

QTEST_MAIN(TestCHorizontalSlider)
#include "test_chorizontalslider.moc"
