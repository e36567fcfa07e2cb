#pragma once

#include <QComboBox>

#include <functional>

namespace ui {

// A list of commands rather than of values: an entry is chosen with the mouse or with Enter. Moving through the
// closed list with other keys, or with the wheel over it, chooses nothing, or nobody would get beyond the first
// entries without going there.
class JumpList : public QComboBox {
public:
    explicit JumpList(QWidget* parent = nullptr);

    void showPopup() override; // wide enough for its entries, however narrow the closed list is

    std::function<void()> chosen;             // an entry of the open list
    std::function<void(int key)> key_pressed; // on the closed list; 13 for Enter

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    bool is_moved_by_key_ = false;
};

} // namespace ui
