#include "model/ZOLDMClipboard.h"

namespace {

ZOLListValZOLDMInstance& Place() {
    static ZOLListValZOLDMInstance objects;
    return objects;
}

} // namespace

int ZOLDMClipboard::GetNbObject() {
    return Place().Size();
}

const ZOLDMInstance& ZOLDMClipboard::GetObject(int n) {
    return Place()[n];
}

const ZOLListValZOLDMInstance& ZOLDMClipboard::GetObjects() {
    return Place();
}

void ZOLDMClipboard::SetObjects(const ZOLListValZOLDMInstance& objects) {
    Place() = objects;
}
