// CObList: a doubly linked list of pointers to objects.
#pragma once

#include "framework/object.h"

// A place in a list; null is none.
struct AFX_POSITION;
using POSITION = AFX_POSITION*;

// The list owns its nodes, never the objects. Nodes come in blocks of `blockSize` and stay at their
// place: a position is valid until its own element is removed. Positions and, for the calls that
// return an element, a non-empty list are the caller's duty.
class AFX_FRAMEWORK CObList : public CObject {
  DECLARE_DYNAMIC(CObList)
 public:
  explicit CObList(INT_PTR blockSize = 10);
  ~CObList() override;

  INT_PTR GetCount() const { return count_; }
  INT_PTR GetSize() const { return count_; }
  BOOL IsEmpty() const { return count_ == 0; }

  CObject*& GetHead();
  CObject* GetHead() const;
  CObject*& GetTail();
  CObject* GetTail() const;

  POSITION AddHead(CObject* element);
  POSITION AddTail(CObject* element);
  void AddHead(CObList* elements);  // the other list's elements in their order; it keeps them
  void AddTail(CObList* elements);
  CObject* RemoveHead();
  CObject* RemoveTail();
  void RemoveAll();

  POSITION GetHeadPosition() const;
  POSITION GetTailPosition() const;
  // The element at `position`, which moves on; null when there is no further one.
  CObject*& GetNext(POSITION& position);
  CObject* GetNext(POSITION& position) const;
  CObject*& GetPrev(POSITION& position);
  CObject* GetPrev(POSITION& position) const;

  CObject*& GetAt(POSITION position);
  CObject* GetAt(POSITION position) const;
  void SetAt(POSITION position, CObject* element);
  void RemoveAt(POSITION position);
  POSITION InsertBefore(POSITION position, CObject* element);  // at the head for null
  POSITION InsertAfter(POSITION position, CObject* element);   // at the tail for null

  // The first element equal to `element` behind `after`, from the head for null; null when none.
  POSITION Find(CObject* element, POSITION after = nullptr) const;
  POSITION FindIndex(INT_PTR index) const;

 private:
  struct Node;
  struct Block;
  static Node* ToNode(POSITION position);
  Node* NewNode(Node* previous, Node* next, CObject* element);

  Node* head_ = nullptr;
  Node* tail_ = nullptr;
  Node* free_ = nullptr;
  Block* blocks_ = nullptr;
  INT_PTR count_ = 0;
  INT_PTR block_size_;
};
