// SIGTERM, SIGINT and SIGHUP: a user's `kill`, Ctrl+C in the terminal, the end of a session without a session manager.
#pragma once

class Application;

/// From now on these signals reach the event loop, nested ones included, as Application::EndRequested. One that is
/// ignored already, as SIGHUP under nohup, stays so.
void TakeEndSignals(Application &application);
