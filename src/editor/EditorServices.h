#pragma once
// What the main window hands its Editor: how the core reaches the user, reads and writes
// files, and draws its chances.

#include "editor/Airbrush.h"
#include "editor/DocumentStore.h"
#include "editor/MainWindowView.h"
#include "services/core/UserInterface.h"

namespace iw {

struct EditorServices {
    IMessagePresenter& presenter;
    IProgressSink& progress;
    ILogSink& log;
    IDocumentStore& documents;
    IMainWindowView& view;
    IRandomSource& random;
};

}  // namespace iw
