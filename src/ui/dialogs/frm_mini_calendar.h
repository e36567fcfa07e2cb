#pragma once

#include "core/forms/jump_dates.h"
#include "core/forms/mini_calendar.h"
#include "core/host/platform.h"
#include "core/settings/per_user_store.h"

#include <QDialog>
#include <QList>
#include <QRect>

#include <memory>
#include <optional>

namespace Ui {
class frmMiniCalendar;
}

namespace ui {

// A window that holds nothing but a month, under a thin title strip that it draws itself. A press on the strip
// drags it; a day or the strip's close box closes it, and nothing else does. It opens where it was left.
class frmMiniCalendar : public QDialog {
public:
    frmMiniCalendar(const host::Platform& here, settings::PerUserStore& store, forms::JumpDates& dates,
                    QWidget* parent);
    ~frmMiniCalendar() override;

    void done(int result) override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Form_Load();
    void Form_Resize();
    void Form_Paint();
    void Form_Activate();
    void Form_Deactivate();
    void Form_MouseDown(int Button, int Shift, int X, int Y);
    void Form_Unload();
    void mvwMonth_DateClick(QDate DateClicked);

    void begin_drag(QPoint place);

    std::unique_ptr<Ui::frmMiniCalendar> controls_;
    const host::Platform& here_;
    settings::PerUserStore& store_;
    forms::JumpDates& dates_;
    forms::title_strip::Rectangle close_box_;
    QColor title_color_;
    std::optional<QPoint> drag_offset_; // from the window's corner, while the window itself follows the mouse
};

// Where a window opens that was left at a place: there, unless all of it lies outside every screen; then as near
// as it fits into the first one.
QPoint place_in_view(const QRect& window, const QList<QRect>& screens);

} // namespace ui
