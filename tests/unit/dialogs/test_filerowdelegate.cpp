// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "filerowdelegate.h"

#include "filemodel.h"

#include <QImage>
#include <QPainter>
#include <QTranslator>
#include <QtTest>

using namespace HostDialogs;

namespace {

/// A row as it is drawn.
QImage rowOf(const QString& name, bool selected)
{
    FileModel files(nullptr);
    files.setEntries({{name, false, 1234, QDateTime(QDate(2026, 1, 2), QTime(3, 4)), true}});
    const FileRowDelegate delegate(&files, nullptr);
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 700, 48);
    option.state.setFlag(QStyle::State_Selected, selected);
    QImage image(700, 48, QImage::Format_RGB32);
    image.fill(QColor(0x2e, 0x2e, 0x2e));
    QPainter painter(&image);
    delegate.paint(&painter, option, files.index(0));
    return image;
}

} // namespace

class TestFileRowDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsSizes_data();
    void tellsSizes();
    void rowsAreForFingers();
    void aSelectedRowIsBlue();
    void aNameStaysInItsRow_data();
    void aNameStaysInItsRow();
};

void TestFileRowDelegate::tellsSizes_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* language, qint64 bytes, const char* text) {
        QTest::newRow(text) << QString::fromLatin1(language) << bytes << QString::fromLatin1(text);
    };
    row("en", 0, "0 B");
    row("en", 999, "999 B");
    row("en", 1000, "1.0 kB");
    row("en", 1834, "1.8 kB");
    row("en", 9949, "9.9 kB");
    row("en", 9950, "10 kB");
    row("en", 262656, "263 kB");
    row("en", 999499, "999 kB");
    row("en", 999500, "1.0 MB");
    row("en", 5000000000000000, "5,000 TB");
    row("de", 1834, "1,8 kB");
}

void TestFileRowDelegate::tellsSizes()
{
    QFETCH(QString, language);
    QFETCH(qint64, bytes);
    QTranslator catalogue;
    QVERIFY(catalogue.load(QLatin1String("kvxdialogs_") + language,
                           qEnvironmentVariable("MPB_TRANSLATIONS_DIR")));
    QCoreApplication::installTranslator(&catalogue);
    QTEST(sizeText(bytes), "text");
}

void TestFileRowDelegate::rowsAreForFingers()
{
    FileModel files(nullptr);
    const FileRowDelegate delegate(&files, nullptr);
    QVERIFY(delegate.sizeHint({}, {}).height() >= 44);
}

void TestFileRowDelegate::aSelectedRowIsBlue()
{
    const QString name = QStringLiteral("a.json");
    QCOMPARE(rowOf(name, true).pixelColor(2, 2), QColor(52, 120, 247));
    QCOMPARE(rowOf(name, false).pixelColor(2, 2), QColor(0x2e, 0x2e, 0x2e));
}

void TestFileRowDelegate::aNameStaysInItsRow_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("255 letters") << QString(255, QLatin1Char('W'));
    QTest::newRow("lines") << QString(100, QLatin1Char('\n'));
    QTest::newRow("right to left") << QStringLiteral("\u202E") + QString(80, QChar(0x5E9));
}

// Date and size stand alone at the right end, whatever the name is.
void TestFileRowDelegate::aNameStaysInItsRow()
{
    QFETCH(QString, name);
    const QRect facts(470, 0, 230, 47);
    QCOMPARE(rowOf(name, false).copy(facts), rowOf(QStringLiteral("a"), false).copy(facts));
    QVERIFY(rowOf(name, false) != rowOf(QStringLiteral("a"), false));
}

QTEST_MAIN(TestFileRowDelegate)

#include "test_filerowdelegate.moc"
