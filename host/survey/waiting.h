#pragma once

#include <functional>

namespace testset {

/// Lets events be handled until `condition` holds, which is looked at every few hundredths of a
/// second, or until the time is over; the condition's last answer. Needs an application object.
bool waitUntil(const std::function<bool()>& condition, int milliseconds);

/// Lets events be handled for that time.
void waitFor(int milliseconds);

/// Runs `action`, which may open a dialog and then returns only when that is closed. Meanwhile
/// `answer` is called again and again until it says that it has answered the dialog. A dialog that
/// is still open after `milliseconds` is closed. Returns whether there was an answer.
bool runWithAnswer(
    const std::function<void()>& action, const std::function<bool()>& answer, int milliseconds);

} // namespace testset
