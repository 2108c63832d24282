// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "surface.h"

#include "homepage.h"
#include "hostlook.h"

Surface::Surface()
    : QWidget(nullptr, Qt::FramelessWindowHint)
    , m_pHome(new HomePage(this))
{
    setObjectName(QStringLiteral("surface"));
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(m_pHome);
    setGeometry(QRect(QPoint(), HostLook::ScreenSize));
    m_pHome->setGeometry(rect());
}
