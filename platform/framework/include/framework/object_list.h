// CObList: a doubly linked list of pointers to objects.
#pragma once

#include "object.h"

// A position in a list, or null.
struct AFX_POSITION;
using POSITION = AFX_POSITION*;

// The list owns its nodes, not the objects. Nodes are allocated in blocks of `blockSize` and do not
// move: a position is valid until its element is removed. The caller passes valid positions only,
// and calls that return an element only on a list that is not empty.
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
  void AddHead(CObList* elements);  // in the other list's order; the other list is unchanged
  void AddTail(CObList* elements);
  CObject* RemoveHead();
  CObject* RemoveTail();
  void RemoveAll();

  POSITION GetHeadPosition() const;
  POSITION GetTailPosition() const;
  // The element at `position`, which moves on; it becomes null after the last element.
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

  // The first element equal to `element` after the position `after` (null: from the head), or null.
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
