#pragma once
// The program's arguments as the one command-line text the editor reads: "/log" as given,
// a file as its absolute path, quoted when it holds blanks.

#include <QStringList>

namespace iw::ui {

// `arguments` as QCoreApplication gives them, the program itself first.
QString EditorCommandLine(const QStringList& arguments);

}  // namespace iw::ui
