#include "store/Workspace.h"

#include "store/ChangeWriter.h"

#include <ctime>
#include <utility>

namespace trellis {

namespace {

std::unique_ptr<Workspace>& CurrentPlace() {
    static std::unique_ptr<Workspace> current;
    return current;
}

} // namespace

Workspace::Workspace(std::unique_ptr<StoreSession> session, UserSource user)
    : _session(std::move(session)), _user(std::move(user)) {
    ++_changeCount;
}

Workspace::~Workspace() {
    _objects.ForEach([](StoredObject& object) {
        object._gone = true;
        object._workspace = nullptr;
    });
    ++_changeCount;
}

Workspace* Workspace::Current() {
    return CurrentPlace().get();
}

void Workspace::MakeCurrent(std::unique_ptr<Workspace> workspace) {
    CurrentPlace() = std::move(workspace);
}

void Workspace::ContentChanged(StoredObject& object) {
    ++_changeCount;
    if (object.IsNew() || object.ContentDiffers())
        Scope(object.Home()).Add(object.shared_from_this());
    else
        Scope(object.Home()).Remove(object);
}

void Workspace::Forget(StoredObject& object) {
    const std::shared_ptr<StoredObject> alive = object.shared_from_this();
    _service.Remove(object);
    _model.Remove(object);
    _objects.Remove(object);
    object._gone = true;
    object._workspace = nullptr;
    ++_changeCount;
}

void Workspace::Remove(StoredObject& object, ZOLGYRError& error) {
    Remove(object, object.Home(), error);
}

void Workspace::Remove(StoredObject& object, ChangeHome by, ZOLGYRError& error) {
    if (object._gone) {
        object.MayChange(error);
        return;
    }
    if (object._removedBy == by || object._removedBy == ChangeHome::Service)
        return;
    if (object.IsNew() && by == object.Home())
        return Forget(object);
    _model.Remove(object); // a removal by the service takes the place of one that a roll back would undo
    object._removedBy = by;
    Scope(by).Add(object.shared_from_this());
    ++_changeCount;
}

void Workspace::Unload(StoredObject& object) {
    if (!object._gone)
        Forget(object);
}

void Workspace::DiscardUnsaved(StoredObject& object, ZOLGYRError& error) {
    if (object._gone)
        return;
    if (object.IsNew())
        return Forget(object);
    try {
        if (!object.Reread(*_session))
            return Forget(object);
    } catch (const StoreFailure& failure) {
        return failure.Into(error);
    }
    object._removedBy.reset();
    object._stale = false;
    _service.Remove(object);
    _model.Remove(object);
    ++_changeCount;
}

void Workspace::DiscardUnsaved(ZOLGYRError& error) {
    for (const std::shared_ptr<StoredObject>& object : Unsaved())
        DiscardUnsaved(*object, error);
    _events.clear();
}

std::vector<std::shared_ptr<StoredObject>> Workspace::Unsaved() const {
    ChangeScope both = _service;
    for (const std::shared_ptr<StoredObject>& object : _model.All())
        both.Add(object);
    return both.All();
}

bool Workspace::Save(ZOLGYRError& error) {
    return Write(false, error);
}

bool Workspace::Commit(ZOLGYRError& error) {
    return Write(true, error);
}

bool Workspace::Write(bool withModel, ZOLGYRError& error) {
    std::vector<std::shared_ptr<StoredObject>> objects = withModel ? Unsaved() : _service.All();
    if (objects.empty() && _events.empty())
        return true;
    const SaveStamp stamp{_user(), static_cast<std::int64_t>(std::time(nullptr))};
    std::vector<EventRow> events = _events;
    for (EventRow& event : events) {
        event.version = 1;
        event.lastModifier = stamp.user;
        event.lastUpdate = stamp.time;
    }
    ChangeWriter writer(objects, stamp, withModel);
    try {
        writer.Store(*_session, events);
    } catch (const StoreFailure& failure) {
        failure.Into(error);
        return false;
    }
    for (const std::shared_ptr<StoredObject>& object : writer.Settle())
        Forget(*object);
    for (const std::shared_ptr<StoredObject>& object : objects) {
        if (object->_gone)
            continue;
        _service.Remove(*object);
        if (withModel)
            _model.Remove(*object);
    }
    ++_changeCount;
    _events.clear();
    Deliver(events);
    return true;
}

void Workspace::RollBack() {
    for (const std::shared_ptr<StoredObject>& object : _model.All()) {
        if (object->Home() == ChangeHome::Model && object->IsNew()) {
            Forget(*object);
            continue;
        }
        if (object->_removedBy == ChangeHome::Model)
            object->_removedBy.reset();
        if (object->Home() == ChangeHome::Model)
            object->Revert();
        _model.Remove(*object);
    }
    ++_changeCount;
}

void Workspace::QueueEvent(std::string instanceUuid, int number) {
    EventRow event;
    event.id = _session->NewRowId();
    event.published = static_cast<std::int64_t>(std::time(nullptr));
    event.publisher = _user();
    event.instanceUuid = std::move(instanceUuid);
    event.number = number;
    _events.push_back(std::move(event));
}

int Workspace::AddEventListener(EventListener listener) {
    _listeners[++_lastListener] = std::move(listener);
    return _lastListener;
}

void Workspace::RemoveEventListener(int listener) {
    _listeners.erase(listener);
}

// A listener may add or remove listeners, itself included.
void Workspace::Deliver(const std::vector<EventRow>& events) {
    for (const EventRow& event : events) {
        const std::map<int, EventListener> listeners = _listeners;
        for (const auto& [number, listener] : listeners)
            if (_listeners.contains(number))
                listener(event);
    }
}

bool Workspace::RunBulk(const std::function<bool(StoreSession&)>& work, ZOLGYRError& error) {
    try {
        StoreTransaction transaction(*_session);
        if (!work(*_session))
            return false;
        transaction.Commit();
    } catch (const StoreFailure& failure) {
        failure.Into(error);
        return false;
    }
    std::vector<std::shared_ptr<StoredObject>> written;
    _objects.ForEach([&](StoredObject& object) {
        if (object.Home() == ChangeHome::Model && object.GetState() == StoredObject::State::Clean)
            written.push_back(object.shared_from_this());
    });
    for (const std::shared_ptr<StoredObject>& object : written)
        DiscardUnsaved(*object, error);
    ++_changeCount;
    return true;
}

} // namespace trellis
