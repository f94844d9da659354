#pragma once

#include <functional>
#include <string>
#include <string_view>

class QWidget;

namespace vexa {

/// Shows `sentence` with the error icon over `parent`, and `details` smaller below it; `closed`
/// runs when the user has closed it, for example to give the focus to the field at fault.
void ShowErrorBox(
    QWidget* parent, const std::wstring& sentence, std::function<void()> closed = [] {},
    const std::wstring& details = {});

/// Asks `question` with the question icon, answers "Yes" and "No" (the default); `yes` runs when
/// the user agrees.
void AskYesNo(QWidget* parent, const std::wstring& question, std::function<void()> yes);

/// What AskToDiscard asks.
inline constexpr std::wstring_view kDiscardQuestion =
    L"Are you sure you want to discard your changes?";

/// Asks in the same way before Escape or a window's close button throws away what was typed and not
/// saved; `discard` runs when the user agrees. A "Cancel" button that was pressed asks nothing.
void AskToDiscard(QWidget* parent, std::function<void()> discard);

/// Asks `question` in the same way where both answers lead on: `answered` runs with whether it was
/// "Yes" (the default). Escape is no answer: it takes back what led to the question, and nothing
/// runs.
void AskEitherWay(QWidget* parent, const std::wstring& question,
                  std::function<void(bool yes)> answered);

}  // namespace vexa
