#include "framework/object.h"

CObject::~CObject() = default;

const CRuntimeClass* CObject::GetThisClass() {
  static const CRuntimeClass description{"CObject", static_cast<int>(sizeof(CObject)), nullptr};
  return &description;
}

const CRuntimeClass* CObject::GetRuntimeClass() const { return GetThisClass(); }
