// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pictureoutput.h"

#include <QtTest>

class TestPictureOutput : public QObject
{
    Q_OBJECT

private slots:
    void format_data();
    void format();
    void size_data();
    void size();
};

void TestPictureOutput::format_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("expected");
    QTest::newRow("svg") << QStringLiteral("a.svg") << int(PictureFormat::Svg);
    QTest::newRow("png") << QStringLiteral("a/b.c.png") << int(PictureFormat::Png);
    QTest::newRow("capitals") << QStringLiteral("A.PNG") << int(PictureFormat::Png);
    QTest::newRow("no ending") << QStringLiteral("svg") << -1;
    QTest::newRow("other") << QStringLiteral("a.svgz") << -1;
    QTest::newRow("empty") << QString() << -1;
}

void TestPictureOutput::format()
{
    QFETCH(QString, path);
    QFETCH(int, expected);
    const auto format = formatOfName(path);
    QCOMPARE(format ? int(*format) : -1, expected);
}

void TestPictureOutput::size_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("usual") << QStringLiteral("1200x600") << QSize(1200, 600);
    QTest::newRow("smallest") << QStringLiteral("200x200") << QSize(200, 200);
    QTest::newRow("largest") << QStringLiteral("10000x10000") << QSize(10000, 10000);
    QTest::newRow("too narrow") << QStringLiteral("199x200") << QSize();
    QTest::newRow("too high") << QStringLiteral("200x10001") << QSize();
    QTest::newRow("beyond an integer") << QStringLiteral("99999999999x300") << QSize();
    QTest::newRow("negative") << QStringLiteral("-300x300") << QSize();
    QTest::newRow("one side") << QStringLiteral("300") << QSize();
    QTest::newRow("three sides") << QStringLiteral("300x300x300") << QSize();
    QTest::newRow("line end") << QStringLiteral("300x300\n") << QSize();
    QTest::newRow("fraction") << QStringLiteral("300.5x300") << QSize();
    QTest::newRow("empty") << QString() << QSize();
}

void TestPictureOutput::size()
{
    QFETCH(QString, text);
    QFETCH(QSize, expected);
    QCOMPARE(parsePictureSize(text).value_or(QSize()), expected);
}

QTEST_APPLESS_MAIN(TestPictureOutput)
#include "test_pictureoutput.moc"
