// The handlers of window events that can fail tell every error in the same words, under a title of their own.
#pragma once

#include <QString>
#include <functional>

/// Runs an event's steps; an error ends them with the warning box "An unknown error occured. ..." under `title`.
/// What was done up to then stays done.
void TrapUnknownError(const QString &title, const std::function<void()> &steps);

/// The box itself.
void ShowUnknownError(const QString &title);
