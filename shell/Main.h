#pragma once
#include "shell/Session.h"

#include <memory>

class frmMain;

/// Runs the start of the program in its order: regional settings, data source, path of the store, login, splash,
/// main window. Null when the session ends before the main window opens.
std::unique_ptr<frmMain> Main(Session &session);
