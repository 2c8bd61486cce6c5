#pragma once

#include "store/RowTable.h"
#include "store/StoredObject.h"

#include <memory>
#include <utility>

namespace trellis {

// StoredRecord: a stored object whose content is one row. Handles of the service and of the model read it with
// Row() and change it member by member.
template <class RowType>
class StoredRecord final : public StoredObject {
public:
    // Made by Workspace::Create and by reading; a row of version 0 is new.
    StoredRecord(Workspace& workspace, RowType row) : StoredObject(workspace), _row(std::move(row)) {}

    const RowType& Row() const { return _row; }

    // Sets a member. The stored value makes nothing dirty, and setting a changed object back to it makes it clean
    // again. False, with 60301, when the object was removed or unloaded.
    template <class Value, class Given>
    bool Change(Value RowType::*member, Given&& value, ZOLGYRError& error) {
        if (!MayChange(error))
            return false;
        if (!_stored && !IsNew())
            _stored = std::make_unique<RowType>(_row);
        _row.*member = std::forward<Given>(value);
        if (_stored && *_stored == _row)
            _stored.reset();
        ContentChanged();
        return true;
    }

    RowKind Kind() const override { return RowDescription<RowType>::kind; }
    ChangeHome Home() const override { return RowDescription<RowType>::home; }
    std::int64_t Id() const override { return _row.id; }
    std::int64_t Version() const override { return _row.version; }
    std::string DisplayName() const override { return RowDescription<RowType>::Display(_row); }

    // Takes over a row of the store that is newer than this clean object's.
    void Refresh(const RowType& row) {
        _stored.reset();
        _row = row;
    }

private:
    bool ContentDiffers() const override { return _stored != nullptr; }
    void Revert() override {
        if (_stored)
            Refresh(RowType(*_stored));
    }

    RowType Stamped(const SaveStamp& stamp) const {
        RowType row = _row;
        row.version = _row.version + 1;
        row.lastModifier = stamp.user;
        row.lastUpdate = stamp.time;
        return row;
    }
    void WriteInsert(StoreSession& session, const SaveStamp& stamp) const override {
        session.Table<RowType>().Insert(Stamped(stamp));
    }
    bool WriteUpdate(StoreSession& session, const SaveStamp& stamp) const override {
        return session.Table<RowType>().Update(Stamped(stamp), _row.version);
    }
    bool WriteDelete(StoreSession& session) const override {
        return session.Table<RowType>().Delete(_row.id, _row.version);
    }
    bool KeysHold(StoreSession& session) const override {
        return session.Table<RowType>().KeysHold(_row, _stored.get());
    }
    std::optional<std::string> StoredModifier(StoreSession& session) const override {
        const std::optional<RowType> row = session.Table<RowType>().Read(_row.id);
        return row ? std::optional<std::string>(row->lastModifier) : std::nullopt;
    }
    void TakeSaved(const SaveStamp& stamp) override { Refresh(Stamped(stamp)); }
    bool Reread(StoreSession& session) override {
        const std::optional<RowType> row = session.Table<RowType>().Read(_row.id);
        if (row)
            Refresh(*row);
        return row.has_value();
    }

    std::unique_ptr<RowType> _stored; // the row as stored, while this object differs from it
    RowType _row;
};

// How handles and the workspace hold a record; null for none.
template <class RowType>
using RecordOf = std::shared_ptr<StoredRecord<RowType>>;

} // namespace trellis
