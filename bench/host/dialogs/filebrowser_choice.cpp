// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "filebrowser.h"

#include "dialogbutton.h"
#include "filelist.h"
#include "filemodel.h"
#include "filename.h"
#include "messagebox.h"
#include "namedialog.h"

#include <QAbstractButton>
#include <QFileInfo>
#include <QGuiApplication>
#include <QInputMethod>
#include <QLineEdit>

// How a file is chosen, and why it may not be.

namespace HostDialogs {

void FileBrowser::rowTapped(int row)
{
    const FileEntry entry = m_pFiles->entry(row);
    m_pList->setFocus();
    if (entry.folder)
        return enter(m_strFolder + QLatin1Char('/') + entry.name);
    if (m_pName != nullptr && entry.reachable)
        m_pName->setText(entry.name);
}

void FileBrowser::rowEntered(int row)
{
    const FileEntry entry = m_pFiles->entry(row);
    if (entry.name.isEmpty())
        return;
    if (entry.folder || m_request.mode == Save)
        rowTapped(row);
    if (!entry.folder)
        accept();
}

void FileBrowser::selectionChanged()
{
    m_pAccept->setEnabled(m_pName != nullptr ? !m_pName->text().isEmpty()
                                             : m_pList->currentIndex().isValid());
}

void FileBrowser::arrowPressed(int key)
{
    if (key != Qt::Key_Up && key != Qt::Key_Down)
        return ScreenDialog::arrowPressed(key);
    m_pList->setFocus();
    m_pList->move(key == Qt::Key_Down ? 1 : -1);
}

void FileBrowser::enterReleased()
{
    if (qobject_cast<QAbstractButton*>(focusWidget()) != nullptr)
        return ScreenDialog::enterReleased();
    if (m_pList->hasFocus() && m_pList->currentIndex().isValid())
        rowEntered(m_pList->currentIndex().row());
    else
        accept();
}

void FileBrowser::backReleased()
{
    const int depth = m_userFolder.parts(m_strFolder).size();
    if (depth > 0 && !QGuiApplication::inputMethod()->isVisible())
        goToDepth(depth - 1);
    else
        ScreenDialog::backReleased();
}

void FileBrowser::accept()
{
    QGuiApplication::inputMethod()->hide();
    if (m_request.mode == Open)
        acceptOpen();
    else
        acceptSave();
}

void FileBrowser::acceptOpen()
{
    const FileEntry entry = m_pFiles->entry(m_pList->currentIndex().row());
    if (entry.folder)
        return enter(m_strFolder + QLatin1Char('/') + entry.name);
    if (entry.name.isEmpty())
        return;

    QString path;
    const Refusal refusal = m_userFolder.mayOpen(m_strFolder, entry.name, path);
    if (refusal != Refusal::None)
        return refuse(refusal, entry.name);
    m_strPath = path;
    ScreenDialog::accept();
}

// Between question and answer the folder may have become another: it is looked at again.
void FileBrowser::acceptSave()
{
    const QString typed = m_pName->text().trimmed();
    if (checkName(typed) != NameFault::None)
        return refuse(Refusal::BadName, typed);

    const QString name =
        completeName(typed, m_suffixes, m_nFilter < 0 ? QString() : m_suffixes.at(m_nFilter));
    QString path;
    Refusal refusal = m_userFolder.maySave(m_strFolder, name, path);
    if (refusal == Refusal::None && !mayReplace(path, name))
        return;
    if (refusal == Refusal::None)
        refusal = m_userFolder.maySave(m_strFolder, name, path);
    if (refusal != Refusal::None)
        return refuse(refusal, name);
    m_strPath = path;
    ScreenDialog::accept();
}

bool FileBrowser::mayReplace(const QString& path, const QString& name)
{
    if (!QFileInfo::exists(path))
        return true;
    MessageBox box(MessageKind::Question, withName(qtTrId("HOSTID_DLG_OVERWRITE"), name));
    box.setChoice("HOSTID_DLG_REPLACE", "HOSTID_DLG_CANCEL");
    return box.run() == 1;
}

void FileBrowser::refuse(Refusal refusal, const QString& name)
{
    MessageBox(MessageKind::Warning, refusalText(refusal, name)).run();
    reload();
}

void FileBrowser::createFolder()
{
    NameDialog dialog;
    if (dialog.run() != 1)
        return;
    const Refusal refusal = m_userFolder.makeFolder(m_strFolder, dialog.name());
    if (refusal != Refusal::None)
        return refuse(refusal, dialog.name());
    enter(m_strFolder + QLatin1Char('/') + dialog.name());
}

} // namespace HostDialogs
