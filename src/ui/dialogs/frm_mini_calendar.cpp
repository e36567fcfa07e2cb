#include "ui/dialogs/frm_mini_calendar.h"

#include "core/values/date_time.h"
#include "ui/picture/style.h"
#include "ui_frmMiniCalendar.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <qdrawutil.h>

#include <algorithm>

namespace ui {

namespace title_strip = forms::title_strip;

namespace {

constexpr int darkening = 150; // per cent: the strip's colour beside the month's own title

QDate date_of(values::DateTime value) { return {value.year(), value.month(), value.day()}; }
values::DateTime date_of(QDate value) { return values::DateTime::of(value.year(), value.month(), value.day()); }

} // namespace

QPoint place_in_view(const QRect& window, const QList<QRect>& screens) {
    const auto shows_it = [&](const QRect& screen) { return screen.intersects(window); };
    if (screens.isEmpty() || std::any_of(screens.begin(), screens.end(), shows_it))
        return window.topLeft();
    const QRect& screen = screens.front();
    const auto fitted = [](int at, int begin, int end) { return std::max(std::min(at, end), begin); };
    return {fitted(window.x(), screen.left(), screen.right() + 1 - window.width()),
            fitted(window.y(), screen.top(), screen.bottom() + 1 - window.height())};
}

frmMiniCalendar::frmMiniCalendar(const host::Platform& here, settings::PerUserStore& store,
                                 forms::JumpDates& dates, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), controls_(std::make_unique<Ui::frmMiniCalendar>()),
      here_(here), store_(store), dates_(dates) {
    controls_->setupUi(this);
    const auto pick = [this](QDate date) { mvwMonth_DateClick(date); };
    connect(controls_->mvwMonth, &QCalendarWidget::clicked, this, pick);
    connect(controls_->mvwMonth, &QCalendarWidget::activated, this, pick); // Enter on the selected day
    Form_Deactivate();
    Form_Load();
}

frmMiniCalendar::~frmMiniCalendar() = default;

void frmMiniCalendar::Form_Load() {
    here_.guarded("in frmMiniCalendar: Sub Form_Load - Line # ", [&](host::Step& step) {
        step = 10;
        controls_->mvwMonth->setSelectedDate(date_of(dates_.datCurrentNow));
        step = 20;
        const forms::MiniCalendarPlace place = forms::stored_mini_calendar_place(store_);
        step = 30;
        QList<QRect> screens;
        for (const QScreen* screen : QGuiApplication::screens())
            screens << screen->geometry();
        move(place_in_view({picture::pixels_from_twips(place.left), picture::pixels_from_twips(place.top),
                            sizeHint().width(), sizeHint().height()},
                           screens));
    });
}

void frmMiniCalendar::Form_Unload() {
    here_.guarded("in frmMiniCalendar: Sub Form_Unload - Line # ", [&](host::Step& step) {
        step = 10;
        forms::store_mini_calendar_place(
            {.top = picture::twips_from_pixels(y()), .left = picture::twips_from_pixels(x())}, store_);
    });
}

void frmMiniCalendar::mvwMonth_DateClick(QDate DateClicked) {
    here_.guarded("in frmMiniCalendar: Sub mvwMonth_DateClick - Line # ", [&](host::Step& step) {
        step = 10;
        dates_.datNow = date_of(DateClicked);
        dates_.bDateNowCancel = false;
        step = 20;
        accept();
    });
}

// Whatever closes the window without a pick, such as the program's end, cancels.
void frmMiniCalendar::done(int result) {
    if (result != Accepted)
        dates_.bDateNowCancel = true;
    Form_Unload();
    QDialog::done(result);
}

void frmMiniCalendar::Form_Resize() {
    close_box_ = title_strip::close_box(width());
    update();
}

void frmMiniCalendar::Form_Activate() {
    title_color_ = palette().color(QPalette::Active, QPalette::Highlight).darker(darkening);
    update();
}

void frmMiniCalendar::Form_Deactivate() {
    title_color_ = palette().color(QPalette::Inactive, QPalette::Mid);
    update();
}

void frmMiniCalendar::Form_Paint() {
    QPainter painter(this);
    painter.fillRect(0, 0, width(), title_strip::height, title_color_);
    const QRect box(close_box_.Left, close_box_.Top, close_box_.Right - close_box_.Left,
                    close_box_.Bottom - close_box_.Top);
    const QBrush face = palette().brush(QPalette::Button);
    qDrawWinPanel(&painter, box, palette(), false, &face);
}

void frmMiniCalendar::Form_MouseDown(int Button, int, int X, int Y) {
    switch (title_strip::press(Button, X, Y, close_box_)) {
    case title_strip::Press::ignored:
        break;
    case title_strip::Press::drags:
        begin_drag({X, Y});
        break;
    case title_strip::Press::closes:
        dates_.bDateNowCancel = true;
        reject();
        break;
    }
}

// The window manager moves the window, where there is one.
void frmMiniCalendar::begin_drag(QPoint place) {
    if (!windowHandle() || !windowHandle()->startSystemMove())
        drag_offset_ = place;
}

void frmMiniCalendar::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    Form_Resize();
}

// The edge sets the window off from the one below it.
void frmMiniCalendar::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), palette().color(QPalette::Mid));
    Form_Paint();
}

bool frmMiniCalendar::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate)
        Form_Activate();
    else if (event->type() == QEvent::WindowDeactivate)
        Form_Deactivate();
    return QDialog::event(event);
}

void frmMiniCalendar::mousePressEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    const int button = event->button() == Qt::LeftButton ? 1 : event->button() == Qt::RightButton ? 2 : 4;
    Form_MouseDown(button, 0, place.x(), place.y());
}

void frmMiniCalendar::mouseMoveEvent(QMouseEvent* event) {
    if (drag_offset_)
        move(event->globalPosition().toPoint() - *drag_offset_);
}

void frmMiniCalendar::mouseReleaseEvent(QMouseEvent*) { drag_offset_.reset(); }

// Escape doesn't close this window.
void frmMiniCalendar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        event->accept();
    else
        QDialog::keyPressEvent(event);
}

} // namespace ui
