#pragma once

#include <functional>

class QApplication;

namespace zdt {

class CMainFrameWnd;

/// Runs the designer from its start to its end.
/// @return the exit code: 0, also for a start while another designer of the same user runs, which ends at once and says
///         nothing; 1 if the window can't be made
int runDesigner(int argc, char* argv[]);

/// Dresses the program and runs the window, with the working directory as its workspace.
/// @param whenShown is called once the window is shown and before its events are waited for
int runWindow(QApplication& application, const std::function<void(CMainFrameWnd&)>& whenShown = {});

} // namespace zdt
