// Message maps: which member function of a class handles which message; and CCmdTarget, the base of
// all classes with a map. A map is a table of entries, one for each handler, with a link to the map
// of the base class. Class and signature of a handler are checked where the map is compiled.
#pragma once

#include <array>
#include <cstddef>
#include <cstring>

#include "object.h"
#include "platform.h"

class CCmdTarget;
struct AFX_MSGMAP_ENTRY;

// The address of a handler of any signature: all member pointers have the same size. The bytes are
// copied, because hosts may compile this header as C++17.
using AFX_HANDLER = std::array<std::byte, sizeof(void (CCmdTarget::*)())>;

// The message that a handler is called for. For a command, message is the notification code and
// wParam the id; for a notification, lParam is the NMHDR and notifyResult receives the result.
struct AFX_MESSAGE {
  UINT message = 0;
  WPARAM wParam = 0;
  LPARAM lParam = 0;
  LRESULT* notifyResult = nullptr;
};

using AFX_INVOKER = LRESULT (*)(CCmdTarget&, const AFX_MSGMAP_ENTRY&, const AFX_MESSAGE&);

// One row of a map. nMessage is a window message, or WM_COMMAND or WM_NOTIFY with nCode and the ids
// nID to nLastID. A row without invoker ends the table. registered, when not null, points to the
// number of a message that was registered by name at run time.
struct AFX_MSGMAP_ENTRY {
  UINT nMessage = 0;
  UINT nCode = 0;
  UINT nID = 0;
  UINT nLastID = 0;
  AFX_INVOKER invoke = nullptr;
  AFX_HANDLER handler = {};
  const UINT* registered = nullptr;
};

struct AFX_MSGMAP {
  const AFX_MSGMAP* (*pfnGetBaseMap)();  // null for the last base
  const AFX_MSGMAP_ENTRY* lpEntries;
};

// The first matching row of `messages` or of the maps of its base classes, or null.
AFX_FRAMEWORK const AFX_MSGMAP_ENTRY* AfxFindMessageEntry(const AFX_MSGMAP* messages, UINT message,
                                                          UINT code, UINT id);

// Unpacker<T> describes one kind of message for handlers of class T: Member is the type of the
// handler; Call converts the message to its arguments and calls it.
template <template <class> class Unpacker, class T>
LRESULT AfxInvokeHandler(CCmdTarget& target, const AFX_MSGMAP_ENTRY& entry,
                         const AFX_MESSAGE& message) {
  typename Unpacker<T>::Member handler = nullptr;
  std::memcpy(&handler, entry.handler.data(), sizeof(handler));
  return Unpacker<T>::Call(static_cast<T&>(target), handler, message);
}

template <template <class> class Unpacker, class T>
AFX_MSGMAP_ENTRY AfxMessageEntry(UINT message, UINT code, UINT firstId, UINT lastId,
                                 typename Unpacker<T>::Member handler,
                                 const UINT* registered = nullptr) {
  AFX_HANDLER address = {};
  static_assert(sizeof(handler) == sizeof(address), "member pointers have one size");
  std::memcpy(address.data(), &handler, sizeof(handler));
  return {message, code, firstId, lastId, &AfxInvokeHandler<Unpacker, T>, address, registered};
}

// ---- The macros of a map: in the class declaration, and in one source file

#define DECLARE_MESSAGE_MAP()                   \
 protected:                                     \
  static const AFX_MSGMAP* GetThisMessageMap(); \
  const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                \
  const AFX_MSGMAP* theClass::GetMessageMap() const { return theClass::GetThisMessageMap(); } \
  const AFX_MSGMAP* theClass::GetThisMessageMap() {                                           \
    using ThisClass [[maybe_unused]] = theClass;                                              \
    using TheBaseClass = baseClass;                                                           \
    static const AFX_MSGMAP_ENTRY entries[] = {
#define END_MESSAGE_MAP()                                                           \
  AFX_MSGMAP_ENTRY {}                                                               \
  }                                                                                 \
  ;                                                                                 \
  static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, entries}; \
  return &messageMap;                                                               \
  }

// ---- CCmdTarget: an object that has a message map and can receive commands

inline constexpr int CN_COMMAND = 0;  // a menu command, an accelerator or a button's click

// The object and row that handle a command. OnCmdMsg fills it in and does not call the handler.
struct AFX_CMDHANDLERINFO {
  CCmdTarget* pTarget = nullptr;
  const AFX_MSGMAP_ENTRY* pEntry = nullptr;
};

class AFX_FRAMEWORK CCmdTarget : public CObject {
 public:
  CCmdTarget() = default;
  ~CCmdTarget() override = default;

  // Routes a command with id nID and notification code nCode to the handler in the message map.
  // FALSE when there is none. For WM_NOTIFY the high word of nCode is WM_NOTIFY and pExtra is an
  // AFX_NOTIFY. Derived classes pass what they do not handle to further objects.
  virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

 protected:
  static const AFX_MSGMAP* GetThisMessageMap();
  virtual const AFX_MSGMAP* GetMessageMap() const;
};

// A notification that OnCmdMsg routes.
struct AFX_NOTIFY {
  LRESULT* pResult = nullptr;
  NMHDR* pNMHDR = nullptr;
};
