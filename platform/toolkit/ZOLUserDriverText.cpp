// The verbs of ZOLUserDriver for text, lists, keys and menus.

#include "toolkit/DialogPath.h"
#include "toolkit/DriverVerb.h"
#include "toolkit/MenuOpening.h"
#include "toolkit/UserKeys.h"
#include "toolkit/ZOLDlgCombo.h"
#include "toolkit/ZOLDlgEditor.h"
#include "toolkit/ZOLDlgMenuPane.h"
#include "toolkit/ZOLDlgMultiList.h"
#include "toolkit/ZOLDlgPushItem.h"

#include <algorithm>

using trellis::DriverVerb;

namespace {

// A key that the editor swallows is no refusal of the verb: the user sees that it does not appear.
ZOLUserResult Swallowed(ZOLUserResult result) {
    return result == ZOLUserResult::Refused ? ZOLUserResult::Done : result;
}

ZOLUserResult TypeInto(ZOLDlgEditor& editor, const ZOLUnicodeString& text) {
    if (const ZOLUserResult gate = editor.UserGate(); gate != ZOLUserResult::Done)
        return gate;
    DriverVerb::EnterEditor(editor);
    int start = 0;
    int end = 0;
    editor.GetSelection(start, end);
    if (end == -1)
        editor.UserSelectText(0, editor.GetText().GetLengthInChar());
    if (text.IsEmpty())
        return Swallowed(editor.UserInsert(text));
    for (int i = 0; i < text.GetLengthInChar(); ++i) {
        const ZOLUserResult result = Swallowed(editor.UserInsert(text.SubString(i, 1)));
        if (result != ZOLUserResult::Done)
            return result;
    }
    return ZOLUserResult::Done;
}

ZOLUserResult TypeInto(ZOLDlgCombo& combo, const ZOLUnicodeString& text) {
    if (text.IsEmpty())
        return combo.UserEditField(text);
    for (int i = 1; i <= text.GetLengthInChar(); ++i)
        if (const ZOLUserResult result = combo.UserEditField(text.SubString(0, i));
            result != ZOLUserResult::Done)
            return result;
    return ZOLUserResult::Done;
}

ZOLUserResult PressItem(const std::string& path) {
    ZOLDlgMenuPane* menu = ZOLDlgMenuPane::GetOpenMenu();
    auto* item = dynamic_cast<ZOLDlgPushItem*>(trellis::DialogPath(path).FindBelow(*menu));
    const ZOLUserResult result = item ? item->UserActivate() : ZOLUserResult::NotThere;
    if (result != ZOLUserResult::Done)
        menu->Close();
    return result;
}

void CollectLines(const ZOLDialog& holder, int level, std::vector<ZOLUserDriver::MenuLine>& lines) {
    for (const ZOLDialog* child : holder.GetChildren()) {
        if (!child->IsOnScreen())
            continue;
        lines.push_back({child->GetName(), child->GetTitle(), child->IsSensitive(), level});
        CollectLines(*child, level + 1, lines);
    }
}

} // namespace

void ZOLUserDriver::Type(ZOLDialog* editor, const ZOLUnicodeString& text) {
    DriverVerb verb("type into", editor);
    if (dynamic_cast<ZOLDlgCombo*>(editor))
        verb.On<ZOLDlgCombo>([&text](ZOLDlgCombo& target) { return TypeInto(target, text); });
    else
        verb.On<ZOLDlgEditor>([&text](ZOLDlgEditor& target) { return TypeInto(target, text); });
}

void ZOLUserDriver::Enter(ZOLDialog* editor) {
    DriverVerb("press Return in", editor).On<ZOLDlgEditor>([](ZOLDlgEditor& target) {
        return target.UserEnter();
    });
}

void ZOLUserDriver::SelectText(ZOLDialog* editor, int from, int to) {
    DriverVerb("select text in", editor).On<ZOLDlgEditor>([from, to](ZOLDlgEditor& target) {
        const bool isInside = from >= 0 && from <= to && to <= target.GetText().GetLengthInChar();
        return isInside ? target.UserSelectText(from, to) : ZOLUserResult::NotThere;
    });
}

void ZOLUserDriver::Key(ZOLDialog* dialog, ZOLUserKey key) {
    DriverVerb verb("press a key in", dialog);
    if (key == ZOLUserKey::Escape)
        verb.KeepMenu(); // the key closes it itself
    if (key == ZOLUserKey::F1)
        verb.KeepEditor();
    verb.On<ZOLDialog>([key](ZOLDialog& target) {
        if (auto* editor = dynamic_cast<ZOLDlgEditor*>(&target))
            DriverVerb::EnterEditor(*editor);
        return Swallowed(trellis::PressKey(target, key));
    });
}

void ZOLUserDriver::Choose(ZOLDialog* combo, const ZOLUnicodeString& text) {
    DriverVerb("choose in", combo).On<ZOLDlgCombo>([&text](ZOLDlgCombo& target) {
        for (int line = 0; line < target.GetLineCount(); ++line) {
            ZOLUnicodeString found;
            target.GetLine(found, line);
            if (found == text)
                return target.UserSelect(line);
        }
        return ZOLUserResult::NotThere;
    });
}

void ZOLUserDriver::Select(ZOLDialog* list, const std::vector<int>& rows) {
    DriverVerb("select in", list).On<ZOLDlgList>([&rows](ZOLDlgList& target) {
        return target.UserSelect(rows);
    });
}

void ZOLUserDriver::SelectLines(ZOLDialog* list, const std::vector<ZOLUnicodeString>& texts) {
    const DriverVerb verb("select in", list);
    const auto* target = dynamic_cast<ZOLDlgList*>(list);
    if (!target)
        verb.Refuse("it is no list");
    std::vector<int> rows;
    for (const ZOLUnicodeString& text : texts) {
        std::vector<int> found;
        for (int row = 0; row < target->GetLineCount(); ++row)
            if (target->GetRowText(row) == text)
                found.push_back(row);
        if (found.size() != 1)
            verb.Refuse((found.empty() ? "it has no row \"" : "it has several rows \"") + text.Bytes() + '"');
        rows.push_back(found.front());
    }
    Select(list, rows);
}

void ZOLUserDriver::Activate(ZOLDialog* list, int row) {
    DriverVerb("activate a row of", list).On<ZOLDlgMultiList>([row](ZOLDlgMultiList& target) {
        return target.UserActivate(row);
    });
}

void ZOLUserDriver::Menu(ZOLDialog* owner, const std::string& path) {
    DriverVerb("use the menu of", owner).KeepMenu().On<ZOLDialog>([&path](ZOLDialog& target) {
        std::string rest = path;
        ZOLDialog* holder = trellis::TakeMenuHolder(target, rest);
        const ZOLUserResult opened = holder ? trellis::OpenMenuOf(*holder) : ZOLUserResult::NotThere;
        return opened == ZOLUserResult::Done ? PressItem(rest) : opened;
    });
}

std::vector<ZOLUserDriver::MenuLine> ZOLUserDriver::OpenMenu(ZOLDialog* owner) {
    std::vector<MenuLine> lines;
    DriverVerb("open the menu of", owner).KeepMenu().On<ZOLDialog>([&lines](ZOLDialog& target) {
        const ZOLUserResult opened = trellis::OpenMenuOf(target);
        if (opened == ZOLUserResult::Done)
            CollectLines(*ZOLDlgMenuPane::GetOpenMenu(), 0, lines);
        return opened;
    });
    return lines;
}
