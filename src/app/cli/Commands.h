#pragma once

#include "CliSupport.h"

namespace iw::cli {

// Each command takes the arguments after its name and returns the process's exit code.
int RunInfo(const Args& args);
int RunExtract(const Args& args);
int RunConvert(const Args& args);
int RunPack(const Args& args);
int RunAssociate(const Args& args);
int RunFolderIcon(const Args& args);
int RunFavicon(const Args& args);

}  // namespace iw::cli
