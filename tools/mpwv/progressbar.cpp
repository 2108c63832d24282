// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "progressbar.h"

#include <QByteArray>
#include <QIODevice>

namespace {

const int Width = 40;

}

// One job alone is over before a bar could be read.
ProgressBar::ProgressBar(QIODevice* terminal, bool isTerminal, int total)
    : m_pTerminal(isTerminal && total > 1 ? terminal : nullptr)
    , m_nTotal(total)
{}

ProgressBar::~ProgressBar()
{
    clear();
}

void ProgressBar::clear()
{
    if (m_pTerminal == nullptr || m_nShown < 0)
        return;
    m_pTerminal->write("\r\033[K");
    m_nShown = -1;
}

void ProgressBar::show(int done)
{
    const int share = static_cast<int>(qint64(done) * 1000 / m_nTotal);
    if (m_pTerminal == nullptr || share == m_nShown)
        return;
    const int filled = share * Width / 1000;
    m_pTerminal->write("\r[" + QByteArray(filled, '#') + QByteArray(Width - filled, ' ') + "] " +
                       QByteArray::number(done) + "/" + QByteArray::number(m_nTotal));
    m_nShown = share;
}
