// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "common/fontsubstitution.h"
#include "devicetable.h"
#include "frontpanel.h"
#include "helpwindow.h"
#include "logcapture.h"
#include "parametertable.h"
#include "trainsamples.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTextTable>
#include <QtTest>

#include <cmath>
#include <memory>

namespace {

const QLatin1String PageName("DoublePulseHelpFile.html");
const QLatin1String OwnPictures("help_*.png");
const int PageWidth = 640;

/// A number as the page writes it, with the prefixes that its unit has on the instrument: "1 µs",
/// "0.1 mV", "−5 V".
QString withUnit(double value, const QString& unit)
{
    const QStringList prefixes =
        unit == QLatin1String("V")
            ? QStringList{QString(), QStringLiteral("m")}
            : QStringList{QString(), QStringLiteral("m"), QStringLiteral("µ"), QStringLiteral("n")};
    int i = 0;
    double shown = value;
    for (; i + 1 < prefixes.size() && std::abs(shown) < 0.999999; ++i)
        shown *= 1000;
    return QStringLiteral("%1 %2%3").arg(
        QString::number(shown, 'g', 6).replace(QLatin1Char('-'), QChar(0x2212)), prefixes.at(i),
        unit);
}

QString cellText(const QTextTable* table, int row, int column)
{
    const QTextTableCell cell = table->cellAt(row, column);
    QTextCursor cursor = cell.firstCursorPosition();
    cursor.setPosition(cell.lastPosition(), QTextCursor::KeepAnchor);
    return cursor.selectedText()
        .replace(QChar(QChar::Nbsp), QLatin1Char(' '))
        .replace(QChar(QChar::ParagraphSeparator), QLatin1Char(' '))
        .trimmed();
}

/// What the rows of the page's tables say, with the texts of a row parted by "|".
QStringList tableRows(const QTextDocument& page)
{
    QStringList rows;
    const QList<QTextFrame*> frames = page.rootFrame()->childFrames();
    for (QTextFrame* frame : frames) {
        const auto* table = qobject_cast<QTextTable*>(frame);
        for (int row = 0; table != nullptr && row < table->rows(); ++row) {
            QStringList cells;
            for (int column = 0; column < table->columns(); ++column)
                cells += cellText(table, row, column);
            rows += cells.join(QLatin1Char('|'));
        }
    }
    return rows;
}

template<typename Visitor>
void visitFragments(const QTextDocument& page, Visitor visit)
{
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it)
            visit(it.fragment().charFormat());
    }
}

} // namespace

/// The installed help page, in the folder and in the window in which the editor shows it.
class TestHelpPage : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<LogCapture> m_log;
    QDir m_folder{QString::fromLocal8Bit(qgetenv("MPB_APP_DIR")) +
                  QStringLiteral("/libDoublePulsePluginPics")};
    std::unique_ptr<QWidget> m_window;
    QTextBrowser* m_browser = nullptr;

    const QTextDocument& page() const { return *m_browser->document(); }
    QVector<QTextCursor> linkPlaces() const;
    QStringList links() const;
    QStringList anchors() const;
    QStringList pictures() const;

private Q_SLOTS:
    void initTestCase();
    void isReadWhole();
    void everyLinkHasItsPlace();
    void everyLinkCanBeTapped();
    void everyPictureIsThere();
    void tellsTheRanges_data();
    void tellsTheRanges();
    void tellsTheLevels();
    void tellsTheWaveformLength();
    void needsNoScrollingSideways_data();
    void needsNoScrollingSideways();
    void fitsIntoItsWidth();
    void cleanupTestCase();
};

void TestHelpPage::initTestCase()
{
    m_log = std::make_unique<LogCapture>();
    QApplication::setStyle(QStringLiteral("Fusion"));
    // Qt Test asks for a fixed resolution, which hosts do not, and by which pictures are scaled.
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi, false);
    substituteTextFont();
    QVERIFY(m_folder.exists(PageName));
    m_window.reset(createHelpWindow(m_folder.filePath(PageName)));
    m_window->setAttribute(Qt::WA_DeleteOnClose, false);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_browser = m_window->findChild<QTextBrowser*>();
    QVERIFY(m_browser != nullptr);
}

/// A place inside the text of each link.
QVector<QTextCursor> TestHelpPage::linkPlaces() const
{
    QVector<QTextCursor> found;
    for (QTextBlock block = page().begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            if (it.fragment().charFormat().anchorHref().isEmpty())
                continue;
            found += QTextCursor(block);
            found.last().setPosition(it.fragment().position() + 2);
        }
    }
    return found;
}

QStringList TestHelpPage::links() const
{
    QStringList found;
    visitFragments(page(), [&](const QTextCharFormat& format) {
        if (format.isAnchor() && !format.anchorHref().isEmpty())
            found += format.anchorHref();
    });
    found.removeDuplicates();
    return found;
}

QStringList TestHelpPage::anchors() const
{
    QStringList found;
    visitFragments(page(), [&](const QTextCharFormat& format) { found += format.anchorNames(); });
    return found;
}

QStringList TestHelpPage::pictures() const
{
    QStringList found;
    visitFragments(page(), [&](const QTextCharFormat& format) {
        if (format.isImageFormat())
            found += format.toImageFormat().name();
    });
    return found;
}

void TestHelpPage::isReadWhole()
{
    QCOMPARE(page().metaInformation(QTextDocument::DocumentTitle),
             QStringLiteral("Double Pulse Help"));
    QVERIFY(!page().toPlainText().contains(QChar(QChar::ReplacementCharacter)));
    QVERIFY(!page().toPlainText().contains(QLatin1Char('<')));
}

void TestHelpPage::everyLinkHasItsPlace()
{
    const QStringList all = links();
    QVERIFY(all.size() >= 12);
    for (const QString& link : all) {
        QVERIFY2(link.startsWith(QLatin1Char('#')), qPrintable(link));
        QVERIFY2(anchors().contains(link.mid(1)), qPrintable(link));
    }
    for (const QString& anchor : anchors())
        QVERIFY2(all.contains(QLatin1Char('#') + anchor), qPrintable(anchor));
}

void TestHelpPage::everyLinkCanBeTapped()
{
    QSet<int> places;
    for (const QTextCursor& link : linkPlaces()) {
        m_browser->setTextCursor(link);
        m_browser->ensureCursorVisible();
        FrontPanel::settle();
        const QString target = link.charFormat().anchorHref().mid(1);
        FrontPanel::tap(m_browser->viewport(), m_browser->cursorRect(link).center());
        QTRY_COMPARE(m_browser->source().fragment(), target);
        if (target == QLatin1String("top"))
            QVERIFY(m_browser->verticalScrollBar()->value() < m_browser->fontMetrics().height());
        else
            places += m_browser->verticalScrollBar()->value();
        // Where the next tap leads is told from where this one led.
        m_browser->setSource(QUrl::fromLocalFile(m_folder.filePath(PageName)));
    }
    // The last two may both lie on the last screen.
    QVERIFY(places.size() >= links().size() - 2);
}

void TestHelpPage::everyPictureIsThere()
{
    const QStringList shown = pictures();
    QVERIFY(shown.size() >= 4);
    for (const QString& picture : shown) {
        const QImage image(m_folder.filePath(picture));
        QVERIFY2(!image.isNull(), qPrintable(picture));
        // A picture is seen at one glance.
        QVERIFY2(image.height() <= m_browser->viewport()->height(), qPrintable(picture));
    }
    // And none lies there that the page does not show.
    for (const QString& file : m_folder.entryList({OwnPictures}, QDir::Files))
        QVERIFY2(shown.contains(file), qPrintable(file));
}

void TestHelpPage::tellsTheRanges_data()
{
    const QString second = QStringLiteral("s");
    QTest::addColumn<QString>("row");
    QTest::newRow("count") << QStringLiteral("Number of Pulses|%1 to %2|%3|%4")
                                  .arg(PulseCountRange.minimum)
                                  .arg(PulseCountRange.maximum)
                                  .arg(PulseCountRange.resolution)
                                  .arg(PulseCountRange.defaultValue);
    const auto time = [&](const char* name, const ParameterRange& range) {
        QTest::newRow(name) << QStringLiteral("%1|%2 to %3|%4|%5")
                                   .arg(QLatin1String(name), withUnit(range.minimum, second),
                                        withUnit(range.maximum, second),
                                        withUnit(range.resolution, second),
                                        withUnit(range.defaultValue, second));
    };
    time("Trigger Delay", TriggerDelayRange);
    time("Timer", TriggerTimerRange);
    time("Width", PulseWidthRange);
    time("Gap", PulseGapRange);
}

void TestHelpPage::tellsTheRanges()
{
    QFETCH(QString, row);
    QVERIFY2(tableRows(page()).contains(row), qPrintable(row));
}

void TestHelpPage::tellsTheLevels()
{
    const QStringList rows = tableRows(page());
    const QString volt = QStringLiteral("V");
    const QString step = withUnit(LevelResolution, volt);
    QCOMPARE(rows.filter(QStringLiteral("High Level, Low Level|")).size(), 1);
    QVERIFY(rows.filter(QStringLiteral("High Level, Low Level|"))
                .constFirst()
                .contains(QLatin1Char('|') + step + QLatin1Char('|')));

    for (const QStringList& family : deviceFamilies()) {
        const QStringList told = rows.filter(family.at(DeviceName));
        QCOMPARE(told.size(), 2);
        const double plus = family.at(DeviceOffsetPlus).toDouble();
        const double minus = family.at(DeviceOffsetMinus).toDouble();
        const QString limits = QStringLiteral("|%1|%2|%3");
        QVERIFY(told.at(0).endsWith(
            limits.arg(QStringLiteral("50 Ω"), withUnit(minus, volt), withUnit(plus, volt))));
        QVERIFY(told.at(1).endsWith(limits.arg(QStringLiteral("High Z"), withUnit(2 * minus, volt),
                                               withUnit(2 * plus, volt))));
    }
}

void TestHelpPage::tellsTheWaveformLength()
{
    const double longest =
        TriggerDelayRange.maximum +
        PulseCountRange.maximum * (PulseWidthRange.maximum + PulseGapRange.maximum);
    const double first =
        TriggerDelayRange.defaultValue +
        PulseCountRange.defaultValue * (PulseWidthRange.defaultValue + PulseGapRange.defaultValue);
    const QString text =
        page().toPlainText().replace(QChar(QChar::Nbsp), QLatin1Char(' ')).simplified();
    const auto point = [](double total) {
        return QString::number(total / PointBudget * 1e9, 'f', total > 1e-4 ? 1 : 2);
    };
    QVERIFY(text.contains(QStringLiteral("%1 points").arg(PointBudget)));
    QVERIFY(text.contains(QStringLiteral("%1 ns for the first train of %2")
                              .arg(point(first), withUnit(first, QStringLiteral("s")))));
    QVERIFY(text.contains(QStringLiteral("%1 ns for %2, the longest train")
                              .arg(point(longest), withUnit(longest, QStringLiteral("s")))));
}

void TestHelpPage::needsNoScrollingSideways_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("as shown") << QSize(680, 432);
    QTest::newRow("with a wider frame") << QSize(660, 432);
    QTest::newRow("as large as the screen") << QSize(800, 480);
}

void TestHelpPage::needsNoScrollingSideways()
{
    QFETCH(QSize, size);
    m_window->resize(size);
    QTRY_COMPARE(m_window->size(), size);
    QTRY_COMPARE(m_browser->horizontalScrollBar()->maximum(), 0);
    QVERIFY(m_browser->verticalScrollBar()->maximum() > 0);
    m_window->resize(680, 432);
}

void TestHelpPage::fitsIntoItsWidth()
{
    const std::unique_ptr<QTextDocument> copy(page().clone());
    copy->setTextWidth(PageWidth);
    QVERIFY2(copy->size().width() <= PageWidth, qPrintable(QString::number(copy->size().width())));
}

void TestHelpPage::cleanupTestCase()
{
    m_window.reset();
    const QStringList messages = LogCapture::messages();
    m_log.reset();
    QCOMPARE(messages.filter(QStringLiteral("QText")), QStringList());
}

QTEST_MAIN(TestHelpPage)
#include "test_helppage.moc"
