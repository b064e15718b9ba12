#include "framework/object_list.h"

#include <memory>
#include <utility>

IMPLEMENT_DYNAMIC(CObList, CObject)

struct CObList::Node {
  Node* previous;
  Node* next;
  CObject* element;
};

// Nodes are allocated in blocks, which are freed when the list becomes empty.
struct CObList::Block {
  Block* older;
  std::unique_ptr<Node[]> nodes;
};

namespace {

template <class Node>
POSITION ToPosition(Node* node) {
  return reinterpret_cast<POSITION>(node);
}

}  // namespace

CObList::Node* CObList::ToNode(POSITION position) { return reinterpret_cast<Node*>(position); }

CObList::CObList(INT_PTR blockSize) : block_size_(blockSize > 0 ? blockSize : 1) {}

CObList::~CObList() { RemoveAll(); }

CObList::Node* CObList::NewNode(Node* previous, Node* next, CObject* element) {
  if (!free_) {
    const auto size = static_cast<std::size_t>(block_size_);
    blocks_ = new Block{blocks_, std::make_unique<Node[]>(size)};
    for (std::size_t i = size; i > 0; --i) {
      Node& node = blocks_->nodes[i - 1];
      node.next = free_;
      free_ = &node;
    }
  }
  Node* node = free_;
  free_ = node->next;
  *node = {previous, next, element};
  (previous ? previous->next : head_) = node;
  (next ? next->previous : tail_) = node;
  ++count_;
  return node;
}

CObject*& CObList::GetHead() { return head_->element; }
CObject* CObList::GetHead() const { return head_->element; }
CObject*& CObList::GetTail() { return tail_->element; }
CObject* CObList::GetTail() const { return tail_->element; }

POSITION CObList::AddHead(CObject* element) { return ToPosition(NewNode(nullptr, head_, element)); }
POSITION CObList::AddTail(CObject* element) { return ToPosition(NewNode(tail_, nullptr, element)); }

void CObList::AddHead(CObList* elements) {
  INT_PTR left = elements->GetCount();  // the list may be this one
  POSITION position = elements->GetTailPosition();
  for (; left > 0; --left) AddHead(elements->GetPrev(position));
}

void CObList::AddTail(CObList* elements) {
  INT_PTR left = elements->GetCount();
  POSITION position = elements->GetHeadPosition();
  for (; left > 0; --left) AddTail(elements->GetNext(position));
}

CObject* CObList::RemoveHead() {
  CObject* element = head_->element;
  RemoveAt(ToPosition(head_));
  return element;
}

CObject* CObList::RemoveTail() {
  CObject* element = tail_->element;
  RemoveAt(ToPosition(tail_));
  return element;
}

void CObList::RemoveAll() {
  while (blocks_) delete std::exchange(blocks_, blocks_->older);
  head_ = nullptr;
  tail_ = nullptr;
  free_ = nullptr;
  count_ = 0;
}

POSITION CObList::GetHeadPosition() const { return ToPosition(head_); }
POSITION CObList::GetTailPosition() const { return ToPosition(tail_); }

CObject*& CObList::GetNext(POSITION& position) {
  Node* node = ToNode(position);
  position = ToPosition(node->next);
  return node->element;
}

CObject* CObList::GetNext(POSITION& position) const {
  return const_cast<CObList*>(this)->GetNext(position);
}

CObject*& CObList::GetPrev(POSITION& position) {
  Node* node = ToNode(position);
  position = ToPosition(node->previous);
  return node->element;
}

CObject* CObList::GetPrev(POSITION& position) const {
  return const_cast<CObList*>(this)->GetPrev(position);
}

CObject*& CObList::GetAt(POSITION position) { return ToNode(position)->element; }
CObject* CObList::GetAt(POSITION position) const { return ToNode(position)->element; }
void CObList::SetAt(POSITION position, CObject* element) { ToNode(position)->element = element; }

void CObList::RemoveAt(POSITION position) {
  Node* node = ToNode(position);
  (node->previous ? node->previous->next : head_) = node->next;
  (node->next ? node->next->previous : tail_) = node->previous;
  node->next = free_;
  free_ = node;
  if (--count_ == 0) RemoveAll();
}

POSITION CObList::InsertBefore(POSITION position, CObject* element) {
  if (!position) return AddHead(element);
  Node* node = ToNode(position);
  return ToPosition(NewNode(node->previous, node, element));
}

POSITION CObList::InsertAfter(POSITION position, CObject* element) {
  if (!position) return AddTail(element);
  Node* node = ToNode(position);
  return ToPosition(NewNode(node, node->next, element));
}

POSITION CObList::Find(CObject* element, POSITION after) const {
  Node* node = after ? ToNode(after)->next : head_;
  while (node && node->element != element) node = node->next;
  return ToPosition(node);
}

POSITION CObList::FindIndex(INT_PTR index) const {
  if (index < 0 || index >= count_) return nullptr;
  Node* node = head_;
  for (; index > 0; --index) node = node->next;
  return ToPosition(node);
}
