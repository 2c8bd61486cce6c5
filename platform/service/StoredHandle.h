#pragma once

#include "service/ConfigurationMemory.h"
#include "values/FailureTrace.h"
#include "values/ZOLTime.h"

#include <memory>
#include <utility>

namespace trellis {

// StoredHandle: what the handles of the service share: the record they stand for and a weak hold of the
// memory it lives in, which ends when the database is closed. A record that was unloaded is read anew at the
// next use, so that panels, clipboards and lists go on with the handles they have.
template <class Interface, class RowType>
class StoredHandle : public Interface {
public:
    StoredHandle(std::weak_ptr<ConfigurationMemory> memory, RecordOf<RowType> record)
        : _memory(std::move(memory)), _record(std::move(record)) {}

    const RecordOf<RowType>& Record() const {
        if (_record->GetState() == StoredObject::State::Gone)
            ReadAgain();
        return _record;
    }

    int IsNull() const override { return !Record()->IsAlive(); }
    int IsEqual(const ZOLBaseUnknown* other) const override {
        const auto* handle = dynamic_cast<const StoredHandle*>(other);
        const bool sameDatabase =
            handle && !_memory.owner_before(handle->_memory) && !handle->_memory.owner_before(_memory);
        return sameDatabase && _record->IsSame(*handle->_record);
    }

protected:
    const RowType& Row() const { return Record()->Row(); }

    // Null once the database was closed.
    std::shared_ptr<ConfigurationMemory> Memory() const {
        std::shared_ptr<ConfigurationMemory> memory = _memory.lock();
        if (!memory || !memory->IsOpen())
            return nullptr;
        memory->Begin();
        return memory;
    }

    // Whether the current user may change the object; sets the refusal.
    virtual bool MayChange(ConfigurationMemory& memory, ZOLGYRError& error) const = 0;

    // Sets one member of the row. The value that is there changes nothing and asks nothing.
    template <class Value>
    bool SetMember(Value RowType::*member, const Value& value, ZOLGYRError& error) {
        if (Row().*member == value)
            return true;
        const std::shared_ptr<ConfigurationMemory> memory = Memory();
        if (memory && Record()->IsAlive() && !MayChange(*memory, error))
            return false;
        const bool done = Record()->Change(member, value, error);
        if (memory)
            memory->End();
        return done;
    }

    ZOLUnicodeString LastModifier() const { return Row().lastModifier; }
    ZOLUnicodeString LastUpdateDay() const {
        return Row().version == 0 ? ZOLUnicodeString()
                                  : ZOLQRDTime(ZOLTime(Row().lastUpdate)).GetFormattedDate();
    }

private:
    // Takes the record that is stored under the same key, if there still is one. Once for each state of the
    // database: most records that are gone were removed.
    void ReadAgain() const {
        const std::shared_ptr<ConfigurationMemory> memory = _memory.lock();
        if (!memory || !memory->IsOpen() || _lookedAt == memory->Store().ChangeCount())
            return;
        FailureTrace trace("StoredHandle::ReadAgain");
        const auto stored = memory->Store().template Get<RowType>(_record->Id(), trace);
        if (stored)
            _record = stored;
        else if (trace.GetCode() == 0)
            _lookedAt = memory->Store().ChangeCount();
    }

    std::weak_ptr<ConfigurationMemory> _memory;
    mutable RecordOf<RowType> _record;
    mutable std::int64_t _lookedAt = 0; // change count of the last look in vain
};

} // namespace trellis
