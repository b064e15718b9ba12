// Device dialogs on screens that are too small for them, and at a screen's edges.
#include <gtest/gtest.h>
#include <tdialog.h>

#include "tests/platform/support/scoped_work_area.h"
#include "tests/platform/tdialog/test_resources.h"

namespace {

using test::ScopedWorkArea;

constexpr UINT kTemplates[] = {IDD_ROOM, IDD_FULL, IDD_HAS_OK, IDD_PLAIN_STYLE, IDD_NO_STYLE};

CRect PlaceOf(const CWnd& window) {
  CRect place;
  window.GetWindowRect(place);
  return place;
}

int FontHeight(const CWnd& window) {
  LOGFONTW font = {};
  window.GetFont()->GetLogFont(&font);
  return font.lfHeight;
}

bool IsInside(const CRect& inner, const CRect& outer) {
  CRect both;
  both.UnionRect(inner, outer);
  return both == outer;
}

// All of the dialog and of its items is inside the area.
void ExpectInside(const TDialog& dialog, const CRect& area, UINT id) {
  EXPECT_TRUE(IsInside(PlaceOf(dialog), area)) << id;
  CRect client;
  dialog.GetClientRect(client);
  dialog.ClientToScreen(client);
  for (HWND item = ::GetWindow(dialog.m_hWnd, GW_CHILD); item;
       item = ::GetWindow(item, GW_HWNDNEXT)) {
    EXPECT_TRUE(IsInside(PlaceOf(*CWnd::FromHandle(item)), client)) << id;
  }
}

TEST(SmallScreen, ChangesNothingWhereThereIsRoom) {
  for (const UINT id : kTemplates) {
    CDialog plain;
    ASSERT_TRUE(plain.Create(id));
    TDialog dialog;
    ASSERT_TRUE(dialog.Create(id));
    EXPECT_EQ(FontHeight(plain), FontHeight(dialog)) << id;
    EXPECT_EQ(PlaceOf(plain).Width(), PlaceOf(dialog).Width()) << id;
    EXPECT_EQ(PlaceOf(plain).TopLeft(), PlaceOf(dialog).TopLeft()) << id;
  }
}

TEST(SmallScreen, TakesAFontWithWhichAllOfItIsSeen) {
  for (const UINT id : kTemplates) {
    TDialog large;
    ASSERT_TRUE(large.Create(id));
    const CRect room = PlaceOf(large);
    // A quarter less than the dialog takes.
    const CRect area(20, 30, 20 + room.Width() * 3 / 4, 30 + room.Height() * 3 / 4);
    const ScopedWorkArea small(area);
    TDialog dialog;
    ASSERT_TRUE(dialog.Create(id));
    ExpectInside(dialog, area, id);
    EXPECT_EQ(area.TopLeft(), PlaceOf(dialog).TopLeft()) << id;
    EXPECT_LT(-FontHeight(dialog), -FontHeight(large)) << id;
    if (CWnd* ok = dialog.GetDlgItem(IDOK)) {
      EXPECT_EQ(dialog.GetFont()->m_hObject, ok->GetFont()->m_hObject) << id;
    }
  }
}

TEST(SmallScreen, ModalDialogsToo) {
  class Dialog : public TDialog {
   public:
    CRect place;
    Dialog() : TDialog(IDD_FULL) {}

   protected:
    BOOL OnInitDialog() override {
      TDialog::OnInitDialog();
      place = PlaceOf(*this);
      EndDialog(IDOK);
      return TRUE;
    }
  } dialog;
  TDialog large;
  ASSERT_TRUE(large.Create(IDD_FULL));
  const CRect area(0, 0, PlaceOf(large).Width() - 1, PlaceOf(large).Height());
  const ScopedWorkArea small(area);
  EXPECT_EQ(IDOK, dialog.DoModal());
  EXPECT_TRUE(IsInside(dialog.place, area));
  EXPECT_EQ(area.TopLeft(), dialog.place.TopLeft());
}

TEST(SmallScreen, StandsInTheCornerWhereNothingFits) {
  const ScopedWorkArea tiny({10, 10, 60, 60});
  TDialog dialog;
  ASSERT_TRUE(dialog.Create(IDD_FULL));
  EXPECT_EQ(CPoint(10, 10), PlaceOf(dialog).TopLeft());
  EXPECT_LT(FontHeight(dialog), -5) << "it can be read";
}

TEST(SmallScreen, AnOwnerAtTheEdgeTakesNothingOffTheScreen) {
  const CRect work(200, 150, 800, 600);
  const ScopedWorkArea area(work);
  for (const CPoint at : {CPoint(work.right - 30, work.bottom - 30), CPoint(-500, -400)}) {
    CWnd owner;
    ASSERT_TRUE(
        owner.CreateEx(0, nullptr, L"owner", WS_POPUP, at.x, at.y, 300, 200, nullptr, nullptr));
    for (const UINT id : kTemplates) {
      TDialog dialog;
      ASSERT_TRUE(dialog.Create(id, &owner));
      ExpectInside(dialog, work, id);
    }
  }
}

// A dialog that is a part of a window keeps its place there.
TEST(SmallScreen, LeavesChildDialogsWhereTheyAre) {
  CWnd owner;
  ASSERT_TRUE(
      owner.CreateEx(0, nullptr, L"owner", WS_POPUP, -200, -200, 300, 200, nullptr, nullptr));
  TDialog child;
  ASSERT_TRUE(child.Create(IDD_CHILD, &owner));
  CRect place = PlaceOf(child);
  owner.ScreenToClient(place);
  EXPECT_EQ(CPoint(0, 0), place.TopLeft());
}

}  // namespace
