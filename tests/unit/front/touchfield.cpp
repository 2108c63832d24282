// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>

#include <cstdio>

// A program with a screen to look at and to touch from elsewhere: it paints the left half red and
// the right half blue, or the other way round after each touch, and prints what reaches it.

namespace {

class TouchField : public QWidget
{
protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const QRect left(0, 0, width() / 2, height());
        painter.fillRect(rect(), m_bSwapped ? Qt::red : Qt::blue);
        painter.fillRect(left, m_bSwapped ? Qt::blue : Qt::red);
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        tell("press", *event);
        m_bSwapped = !m_bSwapped;
        update();
    }

    void mouseMoveEvent(QMouseEvent* event) override { tell("move", *event); }
    void mouseReleaseEvent(QMouseEvent* event) override { tell("release", *event); }

    void keyPressEvent(QKeyEvent* event) override
    {
        std::printf("key %s\n", qUtf8Printable(event->text()));
        std::fflush(stdout);
    }

private:
    static void tell(const char* what, const QMouseEvent& event)
    {
        std::printf("%s %d %d\n", what, event.x(), event.y());
        std::fflush(stdout);
    }

    bool m_bSwapped = false;
};

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    TouchField field;
    field.showFullScreen();
    field.setFocus();
    return QApplication::exec();
}
