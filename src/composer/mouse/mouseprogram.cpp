// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/mouse/mouseprogram.h"

#include "composer/composer_editor.h"
#include "composer/mouse/mouse_lists.h"
#include "composer/pages/page_fields.h"
#include "composer/wizards/lesson_frame.h"
#include "livetools/pictures/viewimage.h"
#include "platform/dialogs.h"
#include "platform/field_text.h"
#include "platform/window_places.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"
#include "text/text_lines.h"
#include "ui_mouseprogram.h"

#include <QShortcut>

#include <utility>

namespace zeph {

namespace {

struct PaneRow {
    MousePane pane;
    QWidget *Ui::MouseProgram::*widget;
};

constexpr PaneRow panes[] = {
    { MousePane::Resolution, &Ui::MouseProgram::PaneResolution },
    { MousePane::Choice, &Ui::MouseProgram::PaneChoice },
    { MousePane::Coordinate, &Ui::MouseProgram::PaneCoordinate },
    { MousePane::Place, &Ui::MouseProgram::PanePlace },
    { MousePane::Readings, &Ui::MouseProgram::PaneReadings },
    { MousePane::How, &Ui::MouseProgram::PaneHow },
    { MousePane::Values, &Ui::MouseProgram::PaneValues },
    { MousePane::Statement, &Ui::MouseProgram::PaneStatement },
};

/// What LBL_MouseInfo shows, by index.
constexpr RotateValue readings[] = { RotateCentre, RotateRadius, RotateStart, RotateFinal };

constexpr QStringView mouseButtons[] = { u"MOUSE_LB"_w, u"MOUSE_RB"_w, u"MOUSE_MB"_w };
/// The entry of ComboSteps that is selected at first: an octagon.
constexpr int usualSteps = 2;

MouseUnit unitOf(const QCheckBox &percent)
{
    return percent.isChecked() ? MouseUnit::Percent : MouseUnit::Pixels;
}

} // namespace

MouseProgram::MouseProgram(const Context &context, Documents &documents, ComposerEditor &editor,
                           QWidget *parent)
    : QDialog(parent, Qt::Window), m_context(context), m_documents(documents),
      m_inserter(context, documents, editor), m_ui(std::make_unique<Ui::MouseProgram>())
{
    m_ui->setupUi(this);
    m_buttons = ControlArray<QPushButton>(this, u"Command1"_s);
    m_movements = ControlArray<QRadioButton>(this, u"OptionMouseMove"_s);
    m_info = ControlArray<QLabel>(this, u"LBL_MouseInfo"_s);
    m_values = ControlArray<QLineEdit>(this, u"Text_finalValues"_s);
    for (int page = 0; page < mouseWizardPageCount; ++page) {
        auto *frame = new LessonFrame(context, rowOf(MouseWizardPage(page)).lesson,
                                      DocumentKind::Joystick, page, m_ui->Pages);
        frame->setObjectName(u"Frame_%1"_s.arg(page));
        m_ui->Pages->addWidget(frame);
    }
    FillCoordinateLists();
    FillFields();
    connectFields();
    showPage(MouseWizardPage::Introduction);
}

MouseProgram::~MouseProgram() = default;

bool MouseProgram::Form_Load()
{
    // One that is there may be minimised.
    Q_EMIT viewerWanted();
    if (const QWidget *beside = m_viewer ? m_viewer.data() : parentWidget()) {
        openBeside(*this, *beside->window());
    }
    return true;
}

void MouseProgram::useViewer(ViewImage *viewer)
{
    if (m_viewer == viewer) {
        return;
    }
    m_viewer = viewer;
    m_viewerIsBack = m_noted.measures != Measures();
    Dialogs &dialogs = m_context.dialogs;
    connect(viewer, &ViewImage::measuresChanged, this, guarded(dialogs, [this] {
                noteMeasures();
                refresh();
            }));
    connect(viewer, &ViewImage::pictureLoaded, this, guarded(dialogs, [this] { pictureLoaded(); }));
    connect(viewer, &QObject::destroyed, this, guarded(dialogs, [this](QObject *) {
                // The signal comes before the pointer is cleared.
                m_viewer.clear();
                refresh();
            }));
    askForGesture();
    FillFields();
}

void MouseProgram::noteMeasures()
{
    m_noted = { m_context.settings.of<SharedSettings>().ImageFilePath, m_viewer->pictureSize(),
                m_viewer->measures() };
}

void MouseProgram::pictureLoaded()
{
    const Noted before = m_noted;
    noteMeasures();
    if (std::exchange(m_viewerIsBack, false) && before.path == m_noted.path
        && before.picture == m_noted.picture) {
        m_viewer->setMeasures(before.measures);
    }
    FillFields();
}

void MouseProgram::FillCoordinateLists()
{
    fillList(*m_ui->ComboCoordinate, mouseOrigins);
    nameBox(*m_ui->ComboMacro, u"Macro"_s);
    fillList(*m_ui->ComboMacro, mouseButtons);
    nameBox(*m_ui->ComboScreenRes, u"Screen resolution of the game"_s);
    fillSteps(*m_ui->ComboSteps, usualSteps);
    const int width = fontMetrics().horizontalAdvance(u"-0000.0%,-0000.0%"_s);
    m_ui->LBL_MouseXY->setMinimumWidth(width);
    // The longest usual value, of which nothing is to be cut off in a narrow window.
    QLineEdit &macro = *m_values[RotateMacro];
    macro.setMinimumWidth(macro.fontMetrics().horizontalAdvance(u"[MOUSE_LB]"_s)
                          + 2 * macro.fontMetrics().averageCharWidth());
    giveRoomForStatement(*m_ui->LBL_MouseStatement);
}

void MouseProgram::FillFields()
{
    fillResolutions(*m_ui->ComboScreenRes, fields().picture);
    refresh();
}

void MouseProgram::connectFields()
{
    Dialogs &dialogs = m_context.dialogs;
    for (int i = 0; i < m_buttons.count(); ++i) {
        connect(m_buttons[i], &QPushButton::clicked, this,
                guarded(dialogs, [this, i](bool) { Command1_Click(i); }));
    }
    for (const QRadioButton *movement : m_movements) {
        connect(movement, &QRadioButton::toggled, this, guarded(dialogs, [this](bool isChosen) {
                    if (isChosen) {
                        OptionMouseMove_Click();
                    }
                }));
    }
    auto *help = new QShortcut(Qt::Key_F1, this);
    connect(help, &QShortcut::activated, this, [this] { Q_EMIT helpWanted(mouseHelpTopic); });
    whenEdited(*this, this, guarded(dialogs, [this] { refresh(); }));
    connect(m_ui->CommandRestore, &QPushButton::clicked, this,
            guarded(dialogs, [this](bool) { UpdateMouseRotateFields(); }));
}

void MouseProgram::Command1_Click(int index)
{
    switch (index) {
    case Insert:
        insert();
        return;
    case Next:
        goNext();
        return;
    case Back:
        if (const auto before = pageBefore(m_page, fields().movement)) {
            showPage(*before);
        }
        return;
    case Cancel:
    default:
        reject();
    }
}

void MouseProgram::insert()
{
    if (m_documents.refuseProtected()) {
        return;
    }
    using enum MouseWizardPage;
    switch (m_page) {
    case Resolution:
        m_inserter.insertComposed(screenResolution(m_ui->ComboScreenRes->currentText()));
        return;
    case RotateValues:
        m_inserter.insertComposed(rotateStatement(finalValues()));
        return;
    default:
        m_inserter.insertComposed(placeStatement(fields()));
    }
}

void MouseProgram::goNext()
{
    const auto next = pageAfter(m_page, fields().movement);
    if (!next || (*next == MouseWizardPage::RotateValues && !UpdateMouseRotateFields())) {
        return;
    }
    showPage(*next);
}

void MouseProgram::showPage(MouseWizardPage page)
{
    m_page = page;
    const MouseWizardRow &row = rowOf(page);
    m_ui->Pages->setCurrentIndex(int(page));
    for (const PaneRow &pane : panes) {
        ((*m_ui).*pane.widget)->setVisible(row.panes.testFlag(pane.pane));
    }
    const MouseMovement movement = fields().movement;
    m_buttons[Insert]->setEnabled(row.inserts);
    m_buttons[Next]->setEnabled(pageAfter(page, movement).has_value());
    m_buttons[Back]->setEnabled(pageBefore(page, movement).has_value());
    QPushButton *usual = m_buttons[m_buttons[Next]->isEnabled() ? Next : Insert];
    usual->setDefault(true);
    usual->setFocus();
    refresh();
    askForGesture();
}

void MouseProgram::askForGesture()
{
    const Gesture gesture = rowOf(m_page).gesture;
    if (!m_viewer && gesture != Gesture::None) {
        Q_EMIT viewerWanted();
    }
    if (m_viewer) {
        m_viewer->setGesture(gesture);
    }
}

MouseWizardFields MouseProgram::fields() const
{
    MouseWizardFields fields;
    fields.measures = m_viewer ? m_viewer->measures() : m_noted.measures;
    fields.picture = m_viewer ? m_viewer->pictureSize() : m_noted.picture;
    for (int i = 0; i < m_movements.count(); ++i) {
        if (m_movements[i]->isChecked()) {
            fields.movement = MouseMovement(i);
        }
    }
    fields.origin = m_ui->ComboCoordinate->currentText();
    fields.placeUnit = unitOf(*m_ui->CheckMouseXY);
    fields.rotateUnit = unitOf(*m_ui->CHK_MRpercent);
    fields.macro = m_ui->ComboMacro->currentText().trimmed();
    fields.isClockwise = m_ui->OPT_Clockwise->isChecked();
    fields.steps = m_ui->ComboSteps->currentText();
    return fields;
}

RotateTexts MouseProgram::finalValues() const
{
    RotateTexts values;
    for (int i = 0; i < rotateValueCount; ++i) {
        values[size_t(i)] = m_values[i]->text();
    }
    return values;
}

void MouseProgram::OptionMouseMove_Click()
{
    // The same gesture means something else for another movement.
    m_noted.measures = {};
    if (m_viewer) {
        m_viewer->clearMeasures();
    }
}

void MouseProgram::refresh()
{
    UpdateXYFields();
    UpdateMouseInfoValue();
    using enum MouseWizardPage;
    switch (m_page) {
    case Absolute:
        UpdateMouseXYstatement();
        return;
    case Relative:
        UpdateMouseMoveStatement();
        return;
    case RotateValues:
        m_ui->LBL_MouseStatement->setText(growingRotation(finalValues()));
        return;
    default:
        m_ui->LBL_MouseStatement->setText(growingStatement(fields()));
    }
}

void MouseProgram::UpdateXYFields()
{
    m_ui->LBL_MouseXY->setText(measuredText(fields()));
}

void MouseProgram::UpdateMouseXYstatement()
{
    m_ui->LBL_MouseStatement->setText(growingStatement(fields()));
}

void MouseProgram::UpdateMouseMoveStatement()
{
    m_ui->LBL_MouseStatement->setText(growingStatement(fields()));
}

void MouseProgram::UpdateMouseInfoValue()
{
    auto values = rotateValuesSoFar(fields());
    // The label has no blank in "x,y", as that of a clicked place.
    values[RotateCentre].remove(u' ');
    for (int i = 0; i < m_info.count(); ++i) {
        m_info[i]->setText(values[readings[i]]);
    }
}

bool MouseProgram::UpdateMouseRotateFields()
{
    const auto values = rotateValues(fields());
    if (!values) {
        m_inserter.refuse(values.error());
        return false;
    }
    for (int i = 0; i < rotateValueCount; ++i) {
        showText(*m_values[i], (*values)[size_t(i)]);
    }
    return true;
}

void MouseProgram::reject()
{
    if (m_viewer) {
        m_viewer->setGesture(Gesture::None);
        m_viewer->clearMeasures();
    }
    m_noted = {};
    QDialog::reject();
}

} // namespace zeph
