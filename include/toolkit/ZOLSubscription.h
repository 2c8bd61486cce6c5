#pragma once

class ZOLCommand;
class ZOLEventSubscriber;
class ZOLNotification;

// A callback: a member function of some command class that is told who sent what, and the word given when it
// was subscribed.
using ZOLNotificationMethod = void (ZOLCommand::*)(ZOLCommand* sender, ZOLNotification* notification,
                                                   void* data);

// Makes a callback of a member function of any command class: ZOL_CALLBACK(&ZOLDlgOptionProps::OkCB). A
// function of another signature, or of a class that is no command, does not compile.
#define ZOL_CALLBACK(method) static_cast<ZOLNotificationMethod>(method)

// ZOLSubscription: who is listened to, for what, and what is called then. The notification is given as an
// object or by the name of its class; an object wins where both are given.
struct ZOLSubscription {
    ZOLEventSubscriber* sender = nullptr;
    const ZOLNotification* notification = nullptr;
    const char* className = nullptr;
    ZOLNotificationMethod method = nullptr;
    void* data = nullptr;
};
