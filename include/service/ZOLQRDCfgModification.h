#pragma once

#include "model/SdaiAppInstance.h"

// What an edit of links does. A kind with bit 2 takes a link away.
enum ModificationType {
    AddLink = 1,
    RemoveLink = 2,
    MoveLink = 4,
    ReplaceLink = 8,
    RenameLink = 16,
    AddLinkToConf = 33,
};

// ZOLQRDCfgModification: the edits of links that wait for their commit, in the order in which they were made.
// Positions count from 1; one outside ends the process. A copy means the same links; links are not owned.
class TRELLIS_API ZOLQRDCfgModification {
public:
    virtual ~ZOLQRDCfgModification() = default;

    // Records an edit.
    //   first   the new link, or the only one
    //   second  the link whose place it takes; null but for MoveLink and ReplaceLink
    //   number  the order of the edit
    //   id      what the edit was written as before; empty for one that was not
    void Append(ModificationType kind, SdaiAppInstance* first, SdaiAppInstance* second, const int& number,
                const ZOLUnicodeString& id);
    int GetNbModifications() const { return static_cast<int>(_edits.size()); }
    ZOLUnicodeString GetId(int position) const { return At(position).id; }
    int GetNumber(int position) const { return At(position).number; }
    virtual ModificationType GetKind(int position) const { return At(position).kind; }
    virtual SdaiAppInstance* GetFirst(int position) const { return At(position).first; }
    virtual SdaiAppInstance* GetSecond(int position) const { return At(position).second; }
    // One line that tells the edit to people.
    virtual ZOLUnicodeString GetText(int position) const;
    // Forgets one position; the links stay as they are.
    void Remove(int position);
    // Takes every edit back, the last first: its links leave the working model. The number is the mode of the
    // transaction.
    void RollBack(short);

private:
    struct Edit {
        ModificationType kind;
        SdaiAppInstance* first;
        SdaiAppInstance* second;
        int number;
        ZOLUnicodeString id;
    };

    const Edit& At(int position) const;

    std::vector<Edit> _edits;
};
