// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "editorlook.h"

#include "toolkitlook.h"

using namespace appPlugins;

namespace {

QString number(int value)
{
    return QString::number(value);
}

} // namespace

QFont EditorLook::titleFont()
{
    QFont font(Look::FontFamily, 12, QFont::DemiBold);
    font.setPixelSize(16);
    return font;
}

QString EditorLook::mainStyleSheet()
{
    return QStringLiteral(
               "QLabel[objectName=\"title\"]{color:%1;padding-left:%2px;background-color:%3;}\n"
               "QLabel[objectName=\"parameterContainer\"]{border:%4px solid %5;}\n"
               "QLabel[objectName=\"bottom\"]{background:%6;}\n"
               "QLabel[objectName=\"multipulse thumbnail\"]{border:none; color:#000000; "
               "background-color:transparent;}\n"
               "QLabel[objectName=\"multipulse table\"]{border:none; background-color:%6;}\n"
               "QToolBar{background-color: %3;}\n"
               "QLabel{background-color:%6;}\n")
        .arg(Look::White, number(15), Look::DarkBackground, number(2), Look::White,
             Look::PanelBackground);
}

QString EditorLook::labelStyleSheet()
{
    return QStringLiteral("QLabel{border:none;color:%1;background:#2e2e2e;}"
                          "QLabel:disabled{border:none;color:%2;background:#2e2e2e;}"
                          "QLabel:focus{border:none;color:%1;background:%3;}")
        .arg(Look::White, Look::DisabledGrey, Look::FocusBlue);
}

// The buttons share the width that is left beside the spacings of seven of them; in a window
// narrower than that the spacing is negative, which a tool bar takes for none.
QString EditorLook::toolBarStyleSheet(int windowWidth, int windowHeight)
{
    const double spacing = (windowWidth - 704) / 7.0 - 6;
    const QString side = QString::number(windowHeight * 0.18333333333333332, 'f', 1);
    const QString fontSize = QString::number(
        static_cast<double>(static_cast<float>(windowWidth) * 0.023333333f), 'f', 0);
    return QStringLiteral("QToolBar{border-radius:1px; background-color:#1E1E1E;spacing:%1px;}"
                          "QToolButton{padding-top:4px; padding-bottom:4px; width:%2px;"
                          "height:%3px;margin-left:1px; margin-right:1px; border:none;"
                          "font-size:%4px;color:#cabc9f;font-family:\"Noto Sans medium\";}"
                          "QToolButton:pressed{background-color:#3478f7; color:#ffffff;}"
                          "QToolButton:disabled{color:#3f3f3f;}")
        .arg(QString::number(spacing, 'f', 1), side, side, fontSize);
}

QRect EditorLook::toolBarArea(int windowWidth, int windowHeight)
{
    return QRect(0, static_cast<int>(windowHeight * 0.85625), windowWidth,
                 static_cast<int>(windowHeight * 0.14583333333333334));
}

int EditorLook::iconSize(const QRect& toolBar)
{
    return static_cast<int>(toolBar.height() * 0.6);
}

QString EditorLook::helpStyleSheet()
{
    return QStringLiteral("QWidget{background:%1;color:%2;font-family:\"%5\";font-size:16px;}"
                          "QWidget#help{border:2px solid %6;}"
                          "QTextBrowser{background:%3;border:none;padding:8px;}"
                          "QPushButton{background:%3;border:2px solid %2;border-radius:4px;"
                          "min-height:36px;}"
                          "QPushButton:pressed,QPushButton:focus{background:%4;outline:none;}"
                          "QScrollBar:vertical{background:%1;width:24px;margin:0px;}"
                          "QScrollBar::handle:vertical{background:%2;min-height:60px;"
                          "border-radius:4px;margin:2px 6px;}"
                          "QScrollBar::add-line:vertical,QScrollBar::sub-line:vertical{height:0px;}"
                          "QScrollBar::add-page:vertical,QScrollBar::sub-page:vertical{"
                          "background:transparent;}")
        .arg(Look::DarkBackground, Look::White, Look::PanelBackground, Look::FocusBlue,
             Look::FontFamily, Look::DisabledGrey);
}
