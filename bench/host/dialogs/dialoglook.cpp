// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "dialoglook.h"

#include "toolkitlook.h"

namespace HostDialogs {
namespace DialogLook {

QFont textFont(int pixelSize, bool bold)
{
    QFont font(appPlugins::Look::FontFamily);
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    return font;
}

QString sheet()
{
    return QStringLiteral(
        "QLabel{color:white;}"
        "QLineEdit{background:#2e2e2e;color:white;border:2px solid rgb(146,146,146);"
        "padding:0 10px;selection-background-color:rgb(52,120,247);}"
        "QLineEdit:focus{border:2px solid rgb(52,120,247);}"
        "QListView{background:#2e2e2e;border:2px solid #2e2e2e;outline:none;}"
        "QListView:focus{border:2px solid rgb(52,120,247);}"
        "QScrollArea{background:transparent;border:none;}"
        "QScrollBar:vertical{background:#1e1e1e;width:24px;margin:0;}"
        "QScrollBar::handle:vertical{background:white;min-height:48px;border-radius:4px;"
        "margin:2px 6px;}"
        "QScrollBar::add-line:vertical,QScrollBar::sub-line:vertical{height:0;}"
        "QScrollBar::add-page:vertical,QScrollBar::sub-page:vertical{background:transparent;}");
}

} // namespace DialogLook
} // namespace HostDialogs
