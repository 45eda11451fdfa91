#include "shell/ListDialogLayout.h"

#include <algorithm>

#include "shell/PageLayout.h"

namespace zy {
namespace {

constexpr int kMargin = 240;
constexpr int kBetween = 120;

} // namespace

ListDialogLayout::ListDialogLayout(Form& form, int usualHeight) : size_(form.InnerSize()), top_(kMargin) {
    constexpr int kUsualWidth = 11400;
    if (size_.width == 0) {
        size_ = {kUsualWidth, usualHeight};
        form.SetBounds({0, 0, size_.width, size_.height});
    }
    bottom_ = size_.height - kMargin;
}

void ListDialogLayout::Add(TextLabel& label) {
    if (label.Visible()) {
        label.SetBounds({kMargin, top_, size_.width - 2 * kMargin, label.Preferred().height});
        top_ += label.Preferred().height + kBetween;
    }
}

void ListDialogLayout::Add(std::initializer_list<CommandButton*> buttons) {
    int width = CommandButton::kUsualWidth;
    int height = 0;
    for (const auto* button : buttons) {
        width = std::max(width, button->Preferred().width);
        height = std::max(height, button->Preferred().height);
    }
    bottom_ -= height;
    int left = size_.width - kMargin - static_cast<int>(buttons.size()) * (width + kBetween) + kBetween;
    for (auto* button : buttons) {
        button->SetBounds({left, bottom_, width, height});
        left += width + kBetween;
    }
    bottom_ -= kBetween;
}

std::vector<Rect> ListDialogLayout::Rooms(int count) const {
    const int height = std::max((bottom_ - top_ - (count - 1) * kBetween) / count, 0);
    std::vector<Rect> rooms;
    rooms.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        rooms.push_back({kMargin, top_ + i * (height + kBetween), size_.width - 2 * kMargin, height});
    }
    return rooms;
}

void PlaceList(Frame& frame, ListView& list, const Rect& room) {
    constexpr int kLeastColumn = 1500;
    frame.SetBounds(room);
    const int top = ContentTop(frame);
    list.SetBounds({kGap, top, room.width - 2 * kGap, std::max(room.height - top - kGap, 0)});
    FillWithLastColumn(list, kLeastColumn);
}

} // namespace zy
