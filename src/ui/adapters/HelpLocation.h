#pragma once
// Where the user guide lies: "help" beside the program in a build tree, else the installed
// data folder share/iconwright/help next to the program's "bin".

#include <QString>

namespace iw::ui {

// The guide's page (index.htm unless another is given), or an empty string when the guide
// cannot be found.
QString HelpPage(const QString& page = QStringLiteral("index.htm"));

}  // namespace iw::ui
