// What an instance shows after a redraw, beside a redraw of the same data from nothing.
#include <tavix/tavix.h>

#include <cmath>
#include <numbers>
#include <optional>

#include "tests/storm/storm.h"
#include "tests/support/picture_compare.h"

namespace tavix::storm {
namespace {

constexpr int kSide = 260;  // of the windows compared, in pixels

std::optional<int> FreeInstance(Storm& storm) {
  for (int index = 0; index < Storm::kInstances; ++index) {
    if (!storm.Models()[static_cast<std::size_t>(index)].exists) return index;
  }
  return std::nullopt;
}

struct Showing {
  int angle;
  double middle_x;
  double middle_y;
  double radius;
};

// Links the current instance to a window of its own, and shows this part of the ground.
test::Picture ShownBy(Storm& storm, const Showing& showing) {
  Tavix_DrwFlg(0);
  Tavix_SetBtn(0);
  storm.ExpectCode(0, Tavix_LnkRct(storm.Host().AsParent(), 0, 0, kSide, kSide, 900));
  Tavix_Dsp3D(0);
  Tavix_Dsp(1);
  Tavix_SetTatYok(1, 1);
  storm.ExpectCode(0, Tavix_SetAng(showing.angle));
  storm.ExpectCode(0, Tavix_Zom1(showing.middle_x, showing.middle_y, showing.radius));
  storm.ExpectCode(0, Tavix_Drw(1));
  const HWND window = Tavix_Wnd()->m_hWnd;
  ::UpdateWindow(window);
  const test::Picture picture = test::TakeClientPicture(window);
  Tavix_Dsp(0);
  return picture;
}

void EnterLegend(const Model& model) {
  for (const auto& [number, entry] : model.legend) {
    const auto& [kind, prm1, prm2, prm3, width, color] = entry.values;
    const auto p1 = static_cast<short>(prm1);
    const auto p2 = static_cast<short>(prm2);
    const auto p3 = static_cast<short>(prm3);
    short added = 0;
    if (number <= 200 && entry.is_point) {
      Tavix_ChgPntHan(number, kind, width, color, prm1, prm2, prm3);
    } else if (number <= 200) {
      Tavix_ChgLinHan(number, kind, p1, p2, p3, width, color);
    } else if (entry.is_point) {
      Tavix_AddPntHan(kind, width, color, prm1, prm2, prm3, &added);
    } else {
      Tavix_AddLinHan(kind, p1, p2, p3, width, color, &added);
    }
  }
}

void EnterPiece(const ModelPiece& piece) {
  const std::vector<double>& n = piece.numbers;
  Tavix_FigStt(piece.figure, piece.legend);
  switch (piece.kind) {
    case ModelPiece::Kind::kLine:
      Tavix_FigMdlLin(n[0], n[1], n[2], n[3]);
      break;
    case ModelPiece::Kind::kCircle:
      Tavix_FigMdlCir(n[0], n[1], n[2]);
      break;
    case ModelPiece::Kind::kPolyline:
      Tavix_FigMdlPly(static_cast<int>(n.size() / 2), n.data(), n.data() + n.size() / 2);
      break;
    case ModelPiece::Kind::kArc:
      Tavix_FigMdlArc(n[0], n[1], n[2], n[3], n[4]);
      break;
    case ModelPiece::Kind::kClothoid:
      Tavix_FigMdlClo(n[0], n[1], n[2], n[3], n[4], n[5], n[6]);
  }
  Tavix_FigEnd();
}

void EnterAll(const Model& model) {
  EnterLegend(model);
  for (const ModelPoint& point : model.points.All()) {
    Tavix_SelPntHan(point.legend);
    Tavix_EntPnt(point.key, point.number, CString(point.name.c_str()), point.at[0], point.at[1]);
  }
  for (const ModelLine& line : model.lines.All()) {
    Tavix_SelLinHan(line.legend);
    Tavix_EntLin(line.from, line.to);
  }
  for (const ModelPiece& piece : model.pieces) EnterPiece(piece);
}

// What the model says of an instance that shows this.
void EnterShowing(Model& model, const Showing& showing) {
  model.linked = true;
  model.buttons = false;
  model.angle = showing.angle;
  model.window = {};
  RECT client{};
  ::GetClientRect(Tavix_Wnd()->m_hWnd, &client);
  model.window.client = {client.right, client.bottom};
  model.window.column = client.bottom;
  model.window.ratio_given = true;
  model.window.centre = {showing.middle_x, showing.middle_y};
  // The square around the circle, turned, fills the square window.
  const double angle = showing.angle * std::numbers::pi / 180;
  model.window.scale = client.right / (2 * showing.radius *
                                       (std::fabs(std::cos(angle)) + std::fabs(std::sin(angle))));
}

}  // namespace

void CheckPicture(Storm& storm) {
  const std::optional<int> free = FreeInstance(storm);
  const Model model = storm.Now();
  if (!free || !model.exists || !model.figures_known) return;
  Chance& any = storm.Any();
  const Showing showing{any.Between(0, 359), 400 * any.Part() - 200, 400 * any.Part() - 200,
                        any.Between(1, 700) * 1.0};
  storm.Note("picture");
  const test::Picture shown = ShownBy(storm, showing);
  EnterShowing(storm.Now(), showing);
  CheckView(storm);
  const int index = storm.Index();

  Tavix_SetIdx(*free);
  storm.ExpectCode(0, Tavix_Crt());
  EnterAll(model);
  const test::Picture expected = ShownBy(storm, showing);
  Tavix_Del();
  Tavix_SetIdx(index);
  Tavix_SelPntHan(model.point_legend);
  Tavix_DrwFlg(model.auto_redraw ? 1 : 0);
  Tavix_SetBtn(model.buttons ? 1 : 0);
  storm.Now().buttons = model.buttons;
  storm.Now().window.ForgetView();
  const testing::AssertionResult same = test::SamePicture(expected, shown);
  storm.Expect(same, std::string("a redraw from nothing differs: ") + same.message());
}

}  // namespace tavix::storm
