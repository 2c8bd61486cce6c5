#include "model/ZOLDMWVTA.h"

#include "store/Workspace.h"

using trellis::Workspace;

int ZOLDMWVTA::Commit(int, int) {
    ZOLGYRError error;
    return Commit(1, 1, error);
}

int ZOLDMWVTA::Commit(int, int, ZOLGYRError& error) {
    if (!Workspace::Current()) {
        if (error.GetCode() == 0)
            error.Set(60201);
        return 60201;
    }
    ZOLGYRError own;
    if (Workspace::Current()->Commit(own))
        return 0;
    if (error.GetCode() == 0)
        error = own;
    return own.GetCode();
}

void ZOLDMWVTA::RollBack(int) {
    if (Workspace::Current())
        Workspace::Current()->RollBack();
}
