// CObject: the root of the framework's classes.
#pragma once

#include "platform.h"

// The run-time description of a class.
struct CRuntimeClass {
  const char* m_lpszClassName;
  int m_nObjectSize;
  const CRuntimeClass* m_pBaseClass;  // null for CObject

  [[nodiscard]] bool IsDerivedFrom(const CRuntimeClass* base) const {
    for (const CRuntimeClass* at = this; at; at = at->m_pBaseClass) {
      if (at == base) return true;
    }
    return false;
  }
};

// The root of the framework's classes. Objects are created and destroyed by their owner and never
// copied.
class AFX_FRAMEWORK CObject {
 public:
  virtual ~CObject();
  CObject(const CObject&) = delete;
  CObject& operator=(const CObject&) = delete;

  virtual const CRuntimeClass* GetRuntimeClass() const;
  BOOL IsKindOf(const CRuntimeClass* wanted) const {
    return GetRuntimeClass()->IsDerivedFrom(wanted) ? TRUE : FALSE;
  }
  static const CRuntimeClass* GetThisClass();

 protected:
  CObject() = default;
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

// In the class declaration, and in one source file.
#define DECLARE_DYNAMIC(class_name)           \
 public:                                      \
  static const CRuntimeClass* GetThisClass(); \
  const CRuntimeClass* GetRuntimeClass() const override;

#define IMPLEMENT_DYNAMIC(class_name, base_name)                                              \
  const CRuntimeClass* class_name::GetThisClass() {                                           \
    static const CRuntimeClass description{#class_name, static_cast<int>(sizeof(class_name)), \
                                           base_name::GetThisClass()};                        \
    return &description;                                                                      \
  }                                                                                           \
  const CRuntimeClass* class_name::GetRuntimeClass() const { return GetThisClass(); }
