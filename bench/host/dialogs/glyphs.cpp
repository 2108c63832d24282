// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "glyphs.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

namespace HostDialogs {

namespace {

// All of them are drawn on a field of 24 by 24.
const qreal Field = 24;

QPainterPath lines(std::initializer_list<QPointF> points, bool closed = false)
{
    QPainterPath path;
    path.addPolygon(QPolygonF(QVector<QPointF>(points)));
    if (closed)
        path.closeSubpath();
    return path;
}

QPainterPath folder()
{
    return lines({{2, 5}, {9, 5}, {11, 8}, {22, 8}, {22, 20}, {2, 20}}, true);
}

QPainterPath home()
{
    QPainterPath path = lines({{2, 12}, {12, 3}, {22, 12}});
    path.addPath(
        lines({{5, 10}, {5, 21}, {10, 21}, {10, 15}, {14, 15}, {14, 21}, {19, 21}, {19, 10}}));
    return path;
}

QPainterPath upFolder()
{
    QPainterPath path = folder();
    path.addPath(lines({{12, 18}, {12, 11.5}}));
    path.addPath(lines({{8.5, 14.5}, {12, 11}, {15.5, 14.5}}));
    return path;
}

QPainterPath newFolder()
{
    QPainterPath path = folder();
    path.addPath(lines({{12, 10.5}, {12, 17.5}}));
    path.addPath(lines({{8.5, 14}, {15.5, 14}}));
    return path;
}

QPainterPath file()
{
    QPainterPath path = lines({{5, 2}, {14, 2}, {19, 7}, {19, 22}, {5, 22}}, true);
    path.addPath(lines({{14, 2}, {14, 7}, {19, 7}}));
    return path;
}

QPainterPath backspace()
{
    QPainterPath path = lines({{8, 5}, {22, 5}, {22, 19}, {8, 19}, {2, 12}}, true);
    path.addPath(lines({{11.5, 9}, {17.5, 15}}));
    path.addPath(lines({{17.5, 9}, {11.5, 15}}));
    return path;
}

QPainterPath shift()
{
    return lines({{12, 3}, {21, 12}, {16, 12}, {16, 20}, {8, 20}, {8, 12}, {3, 12}}, true);
}

QPainterPath enter()
{
    QPainterPath path = lines({{20, 5}, {20, 14}, {4, 14}});
    path.addPath(lines({{9, 9}, {4, 14}, {9, 19}}));
    return path;
}

QPainterPath cross()
{
    QPainterPath path = lines({{5, 5}, {19, 19}});
    path.addPath(lines({{19, 5}, {5, 19}}));
    return path;
}

QPainterPath hideKeyboard()
{
    QPainterPath path = lines({{2, 3}, {22, 3}, {22, 14}, {2, 14}}, true);
    path.addPath(lines({{6, 7}, {18, 7}}));
    path.addPath(lines({{8, 10.5}, {16, 10.5}}));
    path.addPath(lines({{8, 17}, {12, 21}, {16, 17}}));
    return path;
}

QPainterPath outline(Glyph glyph)
{
    switch (glyph) {
    case Glyph::Home:
        return home();
    case Glyph::UpFolder:
        return upFolder();
    case Glyph::Folder:
        return folder();
    case Glyph::NewFolder:
        return newFolder();
    case Glyph::File:
        return file();
    case Glyph::Backspace:
        return backspace();
    case Glyph::Shift:
    case Glyph::ShiftLocked:
        return shift();
    case Glyph::Enter:
        return enter();
    case Glyph::Cross:
        return cross();
    case Glyph::HideKeyboard:
        return hideKeyboard();
    case Glyph::Left:
        return lines({{15, 5}, {8, 12}, {15, 19}});
    case Glyph::Right:
        return lines({{9, 5}, {16, 12}, {9, 19}});
    case Glyph::StepUp:
        return lines({{4, 16}, {12, 8}, {20, 16}});
    case Glyph::StepDown:
        return lines({{4, 8}, {12, 16}, {20, 8}});
    case Glyph::Space:
        return lines({{2, 11}, {2, 15}, {22, 15}, {22, 11}});
    case Glyph::None:
        break;
    }
    return {};
}

} // namespace

void drawGlyph(QPainter& painter, const QRectF& place, Glyph glyph, const QColor& colour)
{
    const qreal side = qMin(place.width(), place.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.center() - QPointF(side, side) / 2);
    painter.scale(side / Field, side / Field);
    painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(glyph == Glyph::ShiftLocked ? QBrush(colour) : QBrush(Qt::NoBrush));
    painter.drawPath(outline(glyph));
    painter.restore();
}

} // namespace HostDialogs
