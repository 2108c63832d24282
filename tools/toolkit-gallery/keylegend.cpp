// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keylegend.h"

#include "gallerylook.h"
#include "gallerytexts.h"
#include "translated.h"

#include <QEvent>
#include <QPainter>
#include <QVector>

namespace {

struct Entry
{
    QStringList caps;
    QString meaning;
};

using Line = QVector<Entry>;

QString text(const char* textId)
{
    return appPlugins::translated(textId);
}

Line frontPanelLine()
{
    return {{{QStringLiteral("G")}, QStringLiteral("G n")},
            {{QStringLiteral("M")}, QStringLiteral("M u")},
            {{QStringLiteral("K")}, QStringLiteral("k m")},
            {{QStringLiteral("X")}, QStringLiteral("×1")},
            {{QStringLiteral("↑"), QStringLiteral("↓")}, text(GalleryText::KeyKnob)},
            {{QStringLiteral("Space")}, text(GalleryText::KeyKnobPress)},
            {{QStringLiteral("←"), QStringLiteral("→")}, text(GalleryText::KeyCursor)}};
}

Line galleryLine()
{
    return {{{QStringLiteral("Enter")}, text(GalleryText::KeyConfirm)},
            {{QStringLiteral("Esc")}, text(GalleryText::KeyCancel)},
            {{QStringLiteral("Tab")}, text(GalleryText::KeyNext)},
            {{QStringLiteral("PgUp"), QStringLiteral("PgDn")}, text(GalleryText::KeyPage)},
            {{QStringLiteral("F2")}, text(GalleryText::KeyLanguage)}};
}

const int CapPadding = 5;
const int WordGap = 5;
const int Margin = 8;

class LinePainter
{
public:
    LinePainter(QPainter& painter, const QRect& band)
        : m_painter(painter)
        , m_band(band)
    {}

    int widthOf(const Entry& entry) const
    {
        int width = 0;
        for (const QString& cap : entry.caps)
            width += capWidth(cap) + WordGap;
        return width + m_painter.fontMetrics().horizontalAdvance(entry.meaning);
    }

    void draw(const Entry& entry, int x)
    {
        for (const QString& cap : entry.caps) {
            drawCap(cap, x);
            x += capWidth(cap) + WordGap;
        }
        m_painter.setPen(QColor(176, 176, 176));
        m_painter.drawText(QRect(x, m_band.y(), m_band.width(), m_band.height()),
                           Qt::AlignLeft | Qt::AlignVCenter, entry.meaning);
    }

private:
    int capWidth(const QString& cap) const
    {
        return m_painter.fontMetrics().horizontalAdvance(cap) + 2 * CapPadding;
    }

    void drawCap(const QString& cap, int x)
    {
        const QRect face(x, m_band.y() + 1, capWidth(cap), m_band.height() - 2);
        m_painter.setPen(QColor(110, 110, 110));
        m_painter.setBrush(QColor(58, 58, 58));
        m_painter.drawRoundedRect(QRectF(face).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
        m_painter.setPen(Qt::white);
        m_painter.drawText(face, Qt::AlignCenter, cap);
    }

    QPainter& m_painter;
    QRect m_band;
};

// The entries fill the line with equal gaps.
void drawLine(QPainter& painter, const QRect& band, const Line& line)
{
    LinePainter pen(painter, band);
    int used = 0;
    for (const Entry& entry : line)
        used += pen.widthOf(entry);
    const int gaps = qMax(1, line.size() - 1);
    const double gap = double(band.width() - used) / gaps;
    double x = band.x();
    for (const Entry& entry : line) {
        pen.draw(entry, qRound(x));
        x += pen.widthOf(entry) + gap;
    }
}

} // namespace

KeyLegend::KeyLegend(QWidget* parent)
    : QWidget(parent)
{
    setFont(GalleryLook::font(12));
    setFixedHeight(GalleryLook::LegendHeight);
}

void KeyLegend::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), QColor(0x14, 0x14, 0x14));
    const int half = height() / 2;
    drawLine(painter, QRect(Margin, 1, width() - 2 * Margin, half - 1), frontPanelLine());
    drawLine(painter, QRect(Margin, half, width() - 2 * Margin, half - 1), galleryLine());
}

void KeyLegend::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        update();
    QWidget::changeEvent(event);
}
