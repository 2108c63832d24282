// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cpushbuttonwithimage.h"

#include "testtranslator.h"
#include "toolkitform.h"

#include <QLabel>
#include <QPixmap>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using appPlugins::CPushButtonWithImage;

namespace {

QLabel* titleOf(const QWidget& button)
{
    for (QLabel* label : button.findChildren<QLabel*>()) {
        if (!label->text().isEmpty())
            return label;
    }
    return nullptr;
}

} // namespace

class TestCPushButtonWithImage : public QObject
{
    Q_OBJECT

private slots:
    void showsPictureAndTitle();
    void tapOnItsPartsClicks();
    void disabledClicksNothing();
    void followsLanguage();
};

void TestCPushButtonWithImage::showsPictureAndTitle()
{
    const QTemporaryDir folder;
    const QByteArray path = folder.filePath(QStringLiteral("red.png")).toUtf8();
    QImage red(64, 64, QImage::Format_RGB32);
    red.fill(Qt::red);
    QVERIFY(red.save(QString::fromUtf8(path)));

    ToolkitForm form;
    auto* button = form.add(new CPushButtonWithImage("OPEN", path.constData(), &form));
    button->setFixedSize(120, 120);
    form.start();
    QCOMPARE(titleOf(*button)->text(), QStringLiteral("OPEN"));
    QCOMPARE(form.grab().toImage().pixelColor(FrontPanel::inWindow(button, QPoint(60, 45))),
             QColor(Qt::red));
    QCOMPARE(button->styleSheet(),
             QStringLiteral("QLabel{color:rgb(255,255,255);background:#1e1e1e;}QLabel:disabled{"
                            "color:rgb(146,146,146);background:#1e1e1e;}"));
    button->setText("CLOSE");
    QCOMPARE(titleOf(*button)->text(), QStringLiteral("CLOSE"));
}

void TestCPushButtonWithImage::tapOnItsPartsClicks()
{
    ToolkitForm form;
    auto* button = form.add(new CPushButtonWithImage("OPEN", "/no/such.png", &form));
    button->setFixedSize(120, 120);
    form.start();
    const QSignalSpy clicked(button, &QPushButton::clicked);
    FrontPanel::tap(button, titleOf(*button)->geometry().center());
    FrontPanel::tap(button, QPoint(60, 30));
    QCOMPARE(clicked.count(), 2);
}

void TestCPushButtonWithImage::disabledClicksNothing()
{
    ToolkitForm form;
    auto* button = form.add(new CPushButtonWithImage("OPEN", "/no/such.png", &form));
    form.start();
    const QSignalSpy clicked(button, &QPushButton::clicked);
    button->setDisabled(true);
    QVERIFY(!titleOf(*button)->isEnabled());
    FrontPanel::tap(button);
    QCOMPARE(clicked.count(), 0);
    button->setDisabled(false);
    FrontPanel::tap(button);
    QCOMPARE(clicked.count(), 1);
}

void TestCPushButtonWithImage::followsLanguage()
{
    const CPushButtonWithImage button("OPEN", "/no/such.png", nullptr);
    const TestTranslator german(QStringLiteral("de:"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(titleOf(button)->text(), QStringLiteral("de:OPEN"));
}

QTEST_MAIN(TestCPushButtonWithImage)
#include "test_cpushbuttonwithimage.moc"
