// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "screendialog.h"
#include "userfolder.h"

#include <QFileSystemWatcher>
#include <QTimer>

class QHBoxLayout;
class QLabel;
class QLineEdit;

namespace HostDialogs {

class Breadcrumb;
class DialogButton;
class FileList;
class FileModel;

/// Lets the user choose a file to open, or a folder and a name to save under, within the user-data
/// folder. What it shows was inside when it was listed; what it returns was inside, with every link
/// followed, at the moment of the choice.
class FileBrowser : public ScreenDialog
{
    Q_OBJECT

public:
    enum Mode { Open, Save };

    /// What the browser is asked for.
    struct Request
    {
        Mode mode = Open;
        QString userData;    ///< the folder that is not left
        QStringList filters; ///< ".json"; none for every file
        QString start;       ///< folder to begin with; the user-data folder for one outside
        QByteArray titleId;  ///< identifier of the title
        QString name;        ///< suggestion for the name of a file to save
    };

    explicit FileBrowser(const Request& request);

    /// The chosen file, without links in it; empty while there is none.
    QString path() const { return m_strPath; }
    /// The folder on show.
    QString folder() const { return m_strFolder; }

    void accept() override;

protected:
    QRect panelPlace(const QRect& screen) const override;
    void retranslate() override;
    void arrowPressed(int key) override;
    void enterReleased() override;
    void backReleased() override;

private:
    // Construction and texts.
    DialogButton* addButton(const char* name, QHBoxLayout* row, int stretch = 0);
    void buildTitleRow(QHBoxLayout* row);
    void buildNameRow(QHBoxLayout* row);
    void buildPathRow(QHBoxLayout* row);
    void buildButtonRow(QHBoxLayout* row);
    void buildFilters(QHBoxLayout* row);
    void build();
    void orderFocus();

    // Folders and their lists.
    void enter(const QString& folder);
    void goToDepth(int depth);
    void showEntries();
    void reload();
    void sortBy(bool date);
    void filterBy(int filter);
    QStringList suffixesOnShow() const;

    // Choosing.
    void rowTapped(int row);
    void rowEntered(int row);
    void selectionChanged();
    void acceptOpen();
    void acceptSave();
    void createFolder();
    void refuse(Refusal refusal, const QString& name);
    bool mayReplace(const QString& path, const QString& name);

    Request m_request;
    UserFolder m_userFolder;
    QStringList m_suffixes;
    QString m_strFolder;
    QString m_strPath;
    int m_nFilter = -1;
    bool m_bByDate = false;

    FileModel* m_pFiles;
    FileList* m_pList;
    Breadcrumb* m_pWay;
    QLabel* m_pTitle = nullptr;
    QLabel* m_pNameLabel = nullptr;
    QLabel* m_pHint = nullptr;
    QLineEdit* m_pName = nullptr;
    DialogButton* m_pAllTypes = nullptr;
    QVector<DialogButton*> m_filterButtons;
    DialogButton* m_pNewFolder = nullptr;
    DialogButton* m_pSortName = nullptr;
    DialogButton* m_pSortDate = nullptr;
    DialogButton* m_pCancel = nullptr;
    DialogButton* m_pAccept = nullptr;
    QFileSystemWatcher m_watcher;
    QTimer m_reload;
};

} // namespace HostDialogs
