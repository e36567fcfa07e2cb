#include "ui/main_window/frm_main.h"

#include "ui/dialogs/frm_activity_change.h"
#include "ui_frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMessageBox>
#include <QTimer>

namespace ui {

namespace {

constexpr int retry_milliseconds = 20;
constexpr qreal grid_points = 8;      // what the standard sizes of rows and columns have room for
constexpr int title_row_height = 600; // twips: two lines, as the bold title of today needs on a Wednesday

std::unique_ptr<Ui::frmMain> make_controls(QMainWindow& window) {
    auto controls = std::make_unique<Ui::frmMain>();
    controls->setupUi(&window);
    return controls;
}

// A box that only tells, such as that the contact manager has gone; and the question what becomes of an occurrence
// that is changed already, which would be lost by a Cancel that nobody gave.
bool is_for_the_user(const QWidget* window) {
    const auto* box = qobject_cast<const QMessageBox*>(window);
    return (box && box->buttons().size() == 1) || dynamic_cast<const frmActivityChange*>(window);
}

} // namespace

frmMain::frmMain(const calendar::Outside& outside)
    : controls_(make_controls(*this)), face_(*this, *controls_, [this] { unload(); }), forms_(*this, calendar_),
      hands_(*this), calendar_(outside, {face_, forms_, hands_, forms_}),
      msgSched_(std::make_unique<GridWidget>(calendar_.grid.msgSched, controls_->picForm)) {
    msgSched_->setObjectName("msgSched");
    msgSched_->setFrameShape(QFrame::StyledPanel);
    QFont small = msgSched_->font();
    small.setPointSizeF(grid_points);
    msgSched_->setFont(small);
    calendar_.grid.msgSched.RowHeight(0, title_row_height);
    msgSched_->setFocus();
    face_.msgSched = msgSched_.get();
    calendar_.grid.msgSched.add_observer(*this);
    hands_.attach(*msgSched_, calendar_);
    connect_menu();
    connect_controls();
}

frmMain::~frmMain() { calendar_.grid.msgSched.remove_observer(*this); }

void frmMain::connect_menu() {
    shell::MenuCommands& menu = calendar_.menu;
    connect(controls_->mnuRefresh, &QAction::triggered, this, [&menu] { menu.mnuRefresh_Click(); });
    connect(controls_->mnuFullRefresh, &QAction::triggered, this, [&menu] { menu.mnuFullRefresh_Click(); });
    connect(controls_->mnuExit, &QAction::triggered, this, [this] { calendar_.closing.mnuExit_Click(); });
    connect(controls_->mnuHolidays, &QAction::triggered, this, [&menu] { menu.mnuHolidays_Click(); });
    connect(controls_->mnuUsers, &QAction::triggered, this, [&menu] { menu.mnuUsers_Click(); });
    connect(controls_->mnuAbout, &QAction::triggered, this, [&menu] { menu.mnuAbout_Click(); });
    for (QAction* separator : {controls_->mnuSep8, controls_->mnuSep6})
        separator->setSeparator(true);
}

void frmMain::connect_controls() {
    shell::Navigation& navigation = calendar_.navigation;
    connect(controls_->cmdPrevious, &QToolButton::clicked, this, [&] { navigation.cmdPrevious_Click(); });
    connect(controls_->cmdNext, &QToolButton::clicked, this, [&] { navigation.cmdNext_Click(); });
    controls_->cboGoTo->chosen = [&] { navigation.cboGoTo_Click(); };
    controls_->cboGoTo->key_pressed = [&](int key) { navigation.cboGoTo_KeyPress(key); };
    for (const int index : {0, 1}) {
        const auto box = static_cast<std::size_t>(index);
        connect(face_.view_boxes[box], &QCheckBox::toggled, this, [&, index] { navigation.chkView_Click(index); });
        connect(face_.half_day_boxes[box], &QCheckBox::toggled, this,
                [&, index] { navigation.chkAMPM_Click(index); });
    }
}

void frmMain::load() {
    calendar_.start_up.Form_Load();
    if (is_unloading_)
        return;
    show();
    // A desktop may show the window without making it the active one.
    calendar_.start_up.Form_Activate();
}

void frmMain::unload() {
    if (is_unloading_)
        return;
    is_unloading_ = true;
    finish_unload();
}

void frmMain::unload_at_once() {
    is_in_haste_ = true;
    unload();
}

void frmMain::finish_unload() {
    // Inside a loop of its own, such as a box's, somebody waits whom the end must not surprise.
    if (face_.event_loops() <= 1) {
        calendar_.closing.Form_Unload();
        return;
    }
    // The closing of a dialog can ask in a box of its own, which the next try closes.
    QTimer::singleShot(retry_milliseconds, this, [this] { finish_unload(); });
    for (QWidget* waiting : {QApplication::activePopupWidget(), QApplication::activeModalWidget()})
        if (waiting && (is_in_haste_ || !is_for_the_user(waiting)))
            waiting->close();
}

void frmMain::closeEvent(QCloseEvent* event) {
    event->ignore(); // Form_Unload decides when the program ends
    unload();
}

void frmMain::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    calendar_.sizing.Form_Resize();
}

bool frmMain::event(QEvent* event) {
    const bool taken = QMainWindow::event(event);
    if (event->type() == QEvent::WindowActivate)
        calendar_.start_up.Form_Activate();
    return taken;
}

void frmMain::grid_changed(table::GridChange) {
    if (update_is_due_)
        return;
    update_is_due_ = true;
    QMetaObject::invokeMethod(
        this, [this] { update_controls(); }, Qt::QueuedConnection);
}

void frmMain::update_controls() {
    update_is_due_ = false;
    controls_->lblYear->setText(QString::fromStdString(calendar_.grid.layout.lblYear()));

    const act::ItemList& users = calendar_.act.users.cboUsers;
    QStringList names;
    for (int index = 0; index < users.ListCount(); ++index)
        names << QString::fromStdString(users.List(index));
    QStringList shown;
    for (int index = 0; index < controls_->cboUsers->count(); ++index)
        shown << controls_->cboUsers->itemText(index);
    if (names == shown)
        return;
    controls_->cboUsers->clear();
    controls_->cboUsers->addItems(names);
    controls_->cboUsers->setCurrentIndex(users.ListIndex());
}

} // namespace ui
