#include "gallery/GalleryCommand.h"

#include "gallery/GalleryWindow.h"
#include "session/WindowSession.h"
#include "toolkit/CallbackScope.h"

#include <iostream>

namespace trellis {

ExitCode RunGallery(HostSession& session) {
    if (!WindowSession::Open(session))
        return ExitCode::EnvironmentFailed;
    {
        const CallbackScope scope;
        (new GalleryWindow)->SetVisibility(ZOLShown);
    }
    WindowSession::Run();
    return ExitCode::Fine;
}

ExitCode DescribeGallery(HostSession&) {
    const CallbackScope scope;
    auto* window = new GalleryWindow;
    window->SetVisibility(ZOLShown);
    std::cout << window->DescribeAll();
    window->RequestDelayedDestruction();
    return ExitCode::Fine;
}

} // namespace trellis
