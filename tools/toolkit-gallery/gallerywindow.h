// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "gallerypage.h"

#include <QDialog>
#include <QMap>
#include <QVector>

class ComponentsPage;
class DesktopKeys;
class Languages;
class ParameterForm;
class QLabel;
class QPushButton;
class QStackedWidget;

/// The gallery: a page for each family of widgets, tabs to switch them by touch, a line for what
/// the widgets tell, and a legend of the keys. As large as the instrument's screen, and a dialog,
/// since the keys that an input does not use go to the dialog that it stands in.
class GalleryWindow : public QDialog
{
    Q_OBJECT

public:
    /// @p languages must outlive the window.
    explicit GalleryWindow(Languages& languages);
    ~GalleryWindow() override;

    /// Names of the pages as on the command line.
    static QStringList pageNames();

    /// Shows the page of this name; false, with nothing done, for another one.
    bool showPage(const QString& name);

    /// Has the keys of a desktop turn pages, change the language and move the focus.
    void connectKeys(const DesktopKeys& keys);

    /// The form of the components' page.
    ParameterForm* form() const;

public Q_SLOTS:
    void stepPage(int step);
    void nextLanguage();
    /// Gives the focus to another input of the page.
    void stepInput(int step);
    void showMessage(const QString& text);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* createTabs();
    QPushButton* createTab(const char* textId, int index);
    void addPages();
    void addPage(GalleryPage* page);
    void showPage(int index);
    void showLanguage();

    Languages& m_languages;
    QVector<QPushButton*> m_tabs;
    QVector<GalleryPage*> m_pages;
    QPushButton* m_pLanguageButton;
    QStackedWidget* m_pStack;
    QLabel* m_pMessage;
    QString m_strMessage;
    ComponentsPage* m_pComponents;
};
