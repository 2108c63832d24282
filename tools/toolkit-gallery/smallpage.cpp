// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "smallpage.h"

#include "ccombobox.h"
#include "chorizontalslider.h"
#include "cpushbuttonwithimage.h"
#include "cradiobutton.h"
#include "cstackedcombocomponents.h"
#include "cswitchlabel.h"
#include "gallerylook.h"
#include "gallerytexts.h"
#include "pagegrid.h"
#include "plaincombcomponents.h"
#include "pluginsTranslation.h"
#include "realcombcomponent.h"
#include "selectioncombcomponents.h"
#include "stage.h"
#include "translated.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QEvent>

using namespace appPlugins;

namespace {

const int ImageButtonHeight = 88;
const char* const FolderPicture = ":/pictures/folder.png";

void down(Stage&, QWidget* widget)
{
    widget->findChild<QAbstractButton*>()->setDown(true);
}

void focus(Stage& stage, QWidget* widget)
{
    stage.focus(widget);
}

void nothing(Stage&, QWidget*) {}

CSwitchLabel* title(QWidget* parent)
{
    return new CSwitchLabel(TR_STR_ID_HIGH_LEVEL, parent, false);
}

CSwitchLabel* titleButton(QWidget* parent)
{
    return new CSwitchLabel(TR_DBID_TRIGGER_SLOPE, parent, true);
}

CRadioButton* radio(QWidget* parent)
{
    auto* pair = new CRadioButton(parent, TR_DBID_ON, TR_DBID_OFF);
    pair->setChecked(0, true);
    return pair;
}

// A slider gets its look from its owner: a handle that a finger hits.
CHorizontalSlider* styled(CHorizontalSlider* slider)
{
    slider->setStyleSheet(QStringLiteral(
        "QSlider::groove:horizontal{height:6px;border-radius:3px;background:rgb(96,96,96);}"
        "QSlider::sub-page:horizontal{border-radius:3px;background:rgb(52,120,247);}"
        "QSlider::handle:horizontal{width:34px;margin:-14px 0px;border-image:url("
        "\"/mnt/user-data/.app/appPluginsPics/toggle button.png\");}"));
    return slider;
}

CHorizontalSlider* slider(QWidget* parent)
{
    return styled(new CHorizontalSlider(parent, 0, 100, 40));
}

CPushButtonWithImage* imageButton(QWidget* parent)
{
    return new CPushButtonWithImage(TR_ARBID_OPEN, FolderPicture, parent);
}

/// A combo box by itself, whose items the component otherwise translates.
class SourceBox : public CComboBox
{
public:
    explicit SourceBox(QWidget* parent)
        : CComboBox(parent)
    {
        addItems({QString(), QString(), QString()});
        retranslate();
    }

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange)
            retranslate();
        CComboBox::changeEvent(event);
    }

private:
    void retranslate()
    {
        setItemText(0, translated(TR_STR_ID_MANUAL));
        setItemText(1, translated(TR_DBID_TRIGGER_SOURCE_EXTERNAL));
        setItemText(2, translated(TR_SEQID_TIMER));
    }
};

QPixmap openList(Stage&, QWidget* widget)
{
    auto* box = static_cast<QComboBox*>(widget);
    QWidget* list = box->view()->window();
    list->setAttribute(Qt::WA_DontShowOnScreen);
    box->setFixedHeight(GalleryLook::TouchHeight);
    box->showPopup();
    const QPixmap picture = list->grab();
    box->hidePopup();
    return picture;
}

CPluginCombComponentBase* emptyPage(QWidget* parent)
{
    return new EmptyCombComponent(parent, TR_STR_ID_MANUAL, true, nullptr);
}

CPluginCombComponentBase* slopePage(QWidget* parent)
{
    static const char* slopes[] = {TR_DBID_TRIGGER_SLOPE_POSITIVE, TR_DBID_TRIGGER_SLOPE_NEGATIVE};
    return new ComboBoxCombComponent(parent, TR_DBID_TRIGGER_SLOPE, true, nullptr, 0, 1, slopes);
}

CPluginCombComponentBase* timerPage(QWidget* parent)
{
    return new RealCombComponent(parent, TR_SEQID_TIMER, true, TR_ARBID_UNIT_S, UNIT_TIME, 0.001,
                                 500, 2e-6, 1e-7);
}

CStackedComboComponents* stack(QWidget* parent, Uint16 index)
{
    auto* pages = new CStackedComboComponents(parent);
    for (CPluginCombComponentBase* page : {emptyPage(pages), slopePage(pages), timerPage(pages)}) {
        page->setCombComponentsHorLayout(140, 170, 20, 6);
        pages->addWidget(page);
    }
    pages->setCurrentIndex(index);
    return pages;
}

template<typename Widget>
QWidget* disabled(Widget* widget)
{
    widget->setDisabled(true);
    return widget;
}

} // namespace

SmallPage::SmallPage(QWidget* parent)
    : GalleryPage(parent)
{
    PageGrid grid(this, 120);
    grid.setStates(
        {GalleryText::Live, GalleryText::Focused, GalleryText::Variant, GalleryText::Disabled});
    addTitles(grid);
    addRadioButtons(grid);
    addSliders(grid);
    addStacks(grid);
    addCombos(grid);
    addImageButtons(grid);
}

void SmallPage::addTitles(PageGrid& grid)
{
    grid.addRow("CSwitchLabel", GalleryLook::TouchHeight);
    grid.add(title(this));
    grid.add(nullptr);
    grid.add(nullptr);
    grid.add(disabled(title(this)));

    grid.addRow("CSwitchLabel,\ncheckable", GalleryLook::TouchHeight);
    CSwitchLabel* live = titleButton(this);
    connect(live, &CSwitchLabel::sgnQLabelClicked, this,
            [this] { Q_EMIT message(QStringLiteral("sgnQLabelClicked()")); });
    grid.add(live);
    grid.add(nullptr);
    grid.addPhoto(titleButton, down);
    grid.add(disabled(titleButton(this)));
}

void SmallPage::addRadioButtons(PageGrid& grid)
{
    grid.addRow("CRadioButton", GalleryLook::TouchHeight);
    CRadioButton* live = radio(this);
    connect(live, &CRadioButton::sgnButtonClicked, this, [this](int index) {
        Q_EMIT message(QStringLiteral("sgnButtonClicked(%1)").arg(index));
    });
    addInput(grid.add(live));
    grid.addPhoto(radio, focus);
    CRadioButton* right = radio(this);
    right->setChecked(1, true);
    grid.add(right);
    grid.add(disabled(radio(this)));
}

void SmallPage::addSliders(PageGrid& grid)
{
    grid.addRow("CHorizontal\nSlider", GalleryLook::TouchHeight);
    CHorizontalSlider* live = slider(this);
    connect(live, &CHorizontalSlider::valueChanged, this,
            [this](int value) { Q_EMIT message(QStringLiteral("valueChanged(%1)").arg(value)); });
    addInput(grid.add(live));
    grid.addPhoto(slider, focus);
    grid.add(styled(new CHorizontalSlider(this, 0, 1, 1)));
    grid.add(disabled(slider(this)));
}

void SmallPage::addStacks(PageGrid& grid)
{
    grid.addRow("CStackedCombo\nComponents", GalleryLook::TouchHeight);
    CStackedComboComponents* live = stack(this, 2);
    connect(live, &CStackedComboComponents::currentChanged, this, [this](Uint16 index) {
        Q_EMIT message(QStringLiteral("currentChanged(%1)").arg(index));
    });
    grid.add(live, 2);
    grid.add(disabled(stack(this, 1)), 2);
}

void SmallPage::addCombos(PageGrid& grid)
{
    grid.addRow("CComboBox", GalleryLook::TouchHeight);
    const auto make = [](QWidget* parent) { return new SourceBox(parent); };
    auto* live = new SourceBox(this);
    connect(live, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this](int index) {
        Q_EMIT message(QStringLiteral("currentIndexChanged(%1)").arg(index));
    });
    addInput(grid.add(live));
    grid.addPhoto(make, focus);
    grid.add(new Photo(this, make, nothing, openList), 1, 2);
    grid.add(disabled(new SourceBox(this)));
}

void SmallPage::addImageButtons(PageGrid& grid)
{
    grid.addRow("CPushButton\nWithImage", ImageButtonHeight);
    CPushButtonWithImage* live = imageButton(this);
    connect(live, &QPushButton::clicked, this,
            [this] { Q_EMIT message(QStringLiteral("clicked()")); });
    addInput(grid.add(live));
    grid.addPhoto(imageButton, focus);
    grid.add(nullptr);
    grid.add(disabled(imageButton(this)));
}
