#include "platform/memory/ScriptedDialogs.h"

#include <cstdlib>
#include <iostream>
#include <ostream>
#include <sstream>
#include <utility>

namespace zy {
namespace {

/// What the records hold in place of a dialog's text.
constexpr auto kAnyForm = "(a dialog of the program)";

std::string Describe(bool asks, std::optional<Escape> escape, std::string_view text, std::string_view title) {
    std::ostringstream out;
    out << (asks ? "Yes/No box" : "message box");
    if (escape) {
        out << " (Escape " << (*escape == Escape::AnswersNo ? "answers No" : "is ignored") << ')';
    }
    out << " \"" << text << "\" titled \"" << title << '"';
    return out.str();
}

std::string Describe(const ShownBox& box) {
    return Describe(box.escape.has_value(), box.escape, box.text, box.title);
}

} // namespace

std::ostream& operator<<(std::ostream& out, const ShownBox& box) {
    return out << Describe(box);
}

bool ScriptedDialogs::Expected::Matches(const ShownBox& box) const {
    return text == box.text && title == box.title && asks == box.escape.has_value() &&
           (!escape || escape == box.escape);
}

std::string ScriptedDialogs::Expected::Describe() const {
    return zy::Describe(asks, escape, text, title);
}

ScriptedDialogs::~ScriptedDialogs() {
    const auto failures = Failures();
    for (const auto& failure : failures) {
        std::cerr << failure << '\n';
    }
    if (!failures.empty()) {
        std::abort();
    }
}

void ScriptedDialogs::ShowMessage(std::string_view text, std::string_view title) {
    Show({.text = std::string(text), .title = std::string(title), .escape = std::nullopt});
}

bool ScriptedDialogs::AskYesNo(std::string_view text, std::string_view title, Escape escape) {
    const auto expected = Show({.text = std::string(text), .title = std::string(title), .escape = escape});
    return expected && expected->answer == Answer::Yes;
}

std::optional<std::string> ScriptedDialogs::AskFileToWrite(std::string_view title, std::string_view name,
                                                           const std::vector<std::string>& /*kinds*/) {
    const auto expected =
        Show({.text = std::string(name), .title = std::string(title), .escape = std::nullopt});
    return expected ? expected->path : std::nullopt;
}

void ScriptedDialogs::ShowForm(Form& form) {
    const auto expected = Show({.text = kAnyForm, .title = "", .escape = std::nullopt});
    if (expected && expected->user) {
        expected->user(form);
    }
}

void ScriptedDialogs::ExpectMessage(std::string_view text, std::string_view title) {
    script_.push_back({.text = std::string(text),
                       .title = std::string(title),
                       .asks = false,
                       .answer = Answer::No,
                       .escape = std::nullopt,
                       .user = {}});
}

void ScriptedDialogs::ExpectYesNo(std::string_view text, std::string_view title, Answer answer,
                                  std::optional<Escape> escape) {
    script_.push_back({.text = std::string(text),
                       .title = std::string(title),
                       .asks = true,
                       .answer = answer,
                       .escape = escape,
                       .user = {}});
}

void ScriptedDialogs::ExpectFileToWrite(std::string_view title, std::string_view name,
                                        std::optional<std::string> path) {
    ExpectMessage(name, title);
    script_.back().path = std::move(path);
}

void ScriptedDialogs::ExpectForm(std::function<void(Form&)> user) {
    script_.push_back({.text = kAnyForm,
                       .title = "",
                       .asks = false,
                       .answer = Answer::No,
                       .escape = std::nullopt,
                       .user = std::move(user)});
}

std::vector<std::string> ScriptedDialogs::Failures() {
    auto failures = std::exchange(unexpected_, {});
    for (const auto& expected : std::exchange(script_, {})) {
        failures.push_back("never shown: " + expected.Describe());
    }
    return failures;
}

std::optional<ScriptedDialogs::Expected> ScriptedDialogs::Show(ShownBox box) {
    shown_.push_back(std::move(box));
    if (script_.empty() || !script_.front().Matches(shown_.back())) {
        const auto wanted = script_.empty() ? "no box" : script_.front().Describe();
        unexpected_.push_back("unexpected " + Describe(shown_.back()) + "; expected was " + wanted);
        return std::nullopt;
    }
    auto expected = std::move(script_.front());
    script_.pop_front();
    return expected;
}

} // namespace zy
