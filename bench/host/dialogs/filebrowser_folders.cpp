// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "filebrowser.h"

#include "breadcrumb.h"
#include "dialogbutton.h"
#include "filelist.h"
#include "filemodel.h"

#include <QFileInfo>
#include <QLabel>

// The folder on show and its list.

namespace HostDialogs {

void FileBrowser::enter(const QString& folder)
{
    const QString before = m_strFolder;
    m_strFolder = m_userFolder.nearestFolder(folder);
    if (!m_watcher.directories().isEmpty())
        m_watcher.removePaths(m_watcher.directories());
    if (!m_strFolder.isEmpty())
        m_watcher.addPath(m_strFolder);
    m_pWay->setParts(m_userFolder.parts(m_strFolder));
    showEntries();
    // One up: the way back down is ready.
    if (QFileInfo(before).path() == m_strFolder)
        m_pList->select(m_pFiles->rowOf(QFileInfo(before).fileName()));
}

void FileBrowser::goToDepth(int depth)
{
    const QStringList way = m_userFolder.parts(m_strFolder).mid(0, depth);
    enter(m_userFolder.root() + QLatin1Char('/') + way.join(QLatin1Char('/')));
}

QStringList FileBrowser::suffixesOnShow() const
{
    return m_nFilter < 0 ? m_suffixes : QStringList(m_suffixes.at(m_nFilter));
}

void FileBrowser::showEntries()
{
    QVector<FileEntry> entries = m_userFolder.entries(m_strFolder, suffixesOnShow());
    if (m_bByDate)
        sortByDate(entries);
    else
        sortByName(entries);
    m_pFiles->setEntries(entries);
    m_pHint->setVisible(entries.isEmpty());
    selectionChanged();
}

// What lies in the folder has changed, or the folder itself is gone.
void FileBrowser::reload()
{
    if (m_userFolder.nearestFolder(m_strFolder) != m_strFolder)
        return enter(m_strFolder);

    const QString selected = m_pFiles->entry(m_pList->currentIndex().row()).name;
    showEntries();
    if (!selected.isEmpty())
        m_pList->select(m_pFiles->rowOf(selected));
}

void FileBrowser::sortBy(bool date)
{
    m_bByDate = date;
    m_pSortName->setChecked(!date);
    m_pSortDate->setChecked(date);
    reload();
}

void FileBrowser::filterBy(int filter)
{
    m_nFilter = filter;
    if (m_pAllTypes != nullptr)
        m_pAllTypes->setChecked(filter < 0);
    for (int i = 0; i < m_filterButtons.size(); ++i)
        m_filterButtons.at(i)->setChecked(i == filter);
    reload();
}

} // namespace HostDialogs
