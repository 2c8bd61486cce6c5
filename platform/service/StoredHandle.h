#pragma once

#include "service/ConfigurationMemory.h"
#include "values/ZOLTime.h"

#include <memory>
#include <utility>

namespace trellis {

// StoredHandle: what the handles of the service share: the record they stand for and a weak hold of the
// memory it lives in, which ends when the database is closed.
template <class Interface, class RowType>
class StoredHandle : public Interface {
public:
    StoredHandle(std::weak_ptr<ConfigurationMemory> memory, RecordOf<RowType> record)
        : _memory(std::move(memory)), _record(std::move(record)) {}

    const RecordOf<RowType>& Record() const { return _record; }

    int IsNull() const override { return !_record->IsAlive(); }
    int IsEqual(const ZOLBaseUnknown* other) const override {
        const auto* handle = dynamic_cast<const StoredHandle*>(other);
        const bool sameDatabase =
            handle && !_memory.owner_before(handle->_memory) && !handle->_memory.owner_before(_memory);
        return sameDatabase && _record->IsSame(*handle->_record);
    }

protected:
    const RowType& Row() const { return _record->Row(); }

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
        if (memory && _record->IsAlive() && !MayChange(*memory, error))
            return false;
        const bool done = _record->Change(member, value, error);
        if (memory)
            memory->End();
        return done;
    }

    ZOLUnicodeString LastModifier() const { return Row().version == 0 ? std::string() : Row().lastModifier; }
    ZOLUnicodeString LastUpdateDay() const {
        return Row().version == 0 ? ZOLUnicodeString()
                                  : ZOLQRDTime(ZOLTime(Row().lastUpdate)).GetFormattedDate();
    }

private:
    std::weak_ptr<ConfigurationMemory> _memory;
    RecordOf<RowType> _record;
};

} // namespace trellis
