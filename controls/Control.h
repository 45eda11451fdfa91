#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controls/Event.h"
#include "controls/Geometry.h"

// This room holds the controls of the program's forms as plain models: their whole state, the changes they
// announce and the actions that the user can take on them. It knows no window toolkit; a view shows a model
// and passes the user's actions on to it. It may call basics/ alone.
//
// Two kinds of call meet here and are kept apart: what the program does to a control ("Set...", "Select") and
// what the user does ("Type", "Click", "Pick", "Press..."). The user's action first moves the focus, and so
// may be refused by the control that is left; on a control that is disabled or hidden it does nothing.

namespace zy {

class Container;
class Form;

/// What all controls share. Controls belong to their form, which outlives them as part of the same object.
class Control {
  public:
    /// A control of `parent`, which must outlive it; a form alone has none. The name is for the view and
    /// for tests, the caption for the user.
    Control(Container* parent, std::string name, std::string caption = {});
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& Name() const { return name_; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption);

    /// The control's own switches; IsUsable also asks everything that contains it.
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    bool IsUsable() const;

    /// The place inside the parent, in twips.
    const Rect& Bounds() const { return bounds_; }
    void SetBounds(const Rect& bounds);

    /// The size in twips that the control needs to show its text, as the view that shows it has measured.
    /// Layout asks for it.
    const Size& Preferred() const { return preferred_; }
    void SetPreferred(const Size& preferred) { preferred_ = preferred; }

    /// Gives the control the focus from code: no check runs.
    void SetFocus();
    /// Moves the focus here as the user does. False when the control is not usable or the one that is left
    /// refused.
    bool TakeFocus();
    bool HasFocus();

    /// Whether moving the focus here asks the control that is left. Help is open to the user before a
    /// mistake is corrected.
    bool CausesValidation() const { return causesValidation_; }
    void SetCausesValidation(bool causes) { causesValidation_ = causes; }

    Container* Parent() const { return parent_; }
    /// The form that the control stands on.
    Form& Window();

    /// Asked before the user moves the focus from this control to another; false keeps it here.
    std::function<bool()> validate;
    /// Caption, switches or place changed.
    Event<> appearanceChanged;

  private:
    Container* parent_;
    std::string name_;
    std::string caption_;
    bool enabled_ = true;
    bool visible_ = true;
    bool causesValidation_ = true;
    Rect bounds_;
    Size preferred_;
};

/// A control that holds others: a frame or a form.
class Container : public Control {
  public:
    using Control::Control;

    const std::vector<Control*>& Children() const { return children_; }

  private:
    friend class Control;
    std::vector<Control*> children_;
};

/// A group of controls with a caption; one without a caption has no border.
class Frame : public Container {
  public:
    using Container::Container;
};

/// A text that names the control behind it for the eye, the keyboard and the screen reader.
class Label : public Control {
  public:
    /// `accessKey` is the letter of the caption that, with Alt, moves the focus to `buddy`.
    Label(Container* parent, std::string name, std::string caption, char accessKey, Control& buddy)
        : Control(parent, std::move(name), std::move(caption)), accessKey_(accessKey), buddy_(buddy) {}

    char AccessKey() const { return accessKey_; }
    Control& Buddy() const { return buddy_; }

  private:
    char accessKey_;
    Control& buddy_;
};

/// The label that names a control; null when none does.
Label* FindLabelOf(const Control& control);

} // namespace zy
