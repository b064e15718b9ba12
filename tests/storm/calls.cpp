// Every exported call with random arguments, and what the model says of its outcome.
#include <tavix/tavix.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "tests/storm/storm.h"

namespace tavix::storm {
namespace {

constexpr int kRefused = -1;

std::string Joined() { return {}; }
template <class First, class... Rest>
std::string Joined(const First& first, const Rest&... rest) {
  std::ostringstream text;
  text.precision(17);
  text << first;
  ((text << ", " << rest), ...);
  return text.str();
}

template <class... Arguments>
void Note(Storm& storm, const char* call, const Arguments&... arguments) {
  storm.Note(std::string(call) + "(" + Joined(arguments...) + ")");
}

bool IsSame(double a, double b) { return std::memcmp(&a, &b, sizeof(a)) == 0; }

// ---- What a call returns without an instance or a window

int OnInstance(const Model& model, int otherwise = 0) {
  return model.exists ? otherwise : kRefused;
}
int OnWindow(const Model& model, int otherwise = 0) { return model.linked ? otherwise : kRefused; }

// A change that redraws with auto-redraw on: without a window the redraw refuses. A change to what
// is there already does not redraw.
void ExpectChanged(Storm& storm, bool known, int code) {
  const Model& model = storm.Now();
  if (!known) {
    storm.ExpectCode(kRefused, code);
  } else if (model.auto_redraw && !model.linked) {
    storm.Expect(code == 0 || code == kRefused, "a change returns " + std::to_string(code));
  } else {
    storm.ExpectCode(0, code);
  }
}

// ---- Instances and windows

// Of the plot window; nothing where it could not be made.
SIZE ClientSize() {
  RECT client{};
  ::GetClientRect(Tavix_Wnd()->m_hWnd, &client);
  return {client.right, client.bottom};
}

// The legend as the library has it: that of the file, or the built-in one.
void ReadLegend(Storm& storm) {
  Model& model = storm.Now();
  model.legend.clear();
  const auto read = [&](int number, bool is_point) {
    const auto n = static_cast<short>(number);
    ModelLegend entry;
    entry.is_point = is_point;
    auto& [kind, prm1, prm2, prm3, width, color] = entry.values;
    storm.ExpectCode(0, Tavix_GetPntHan(n, &kind, &width, &color, &prm1, &prm2, &prm3));
    model.legend[n] = entry;
  };
  for (int number = 1; number <= 11; ++number) read(number, true);
  for (int number = 101; number <= 105; ++number) read(number, false);
}

void SetIdx(Storm& storm) {
  const int index = storm.Any().OneIn(10) ? storm.Any().Number() : storm.Any().Between(0, 4);
  Note(storm, "SetIdx", index);
  Tavix_SetIdx(index);
  if (index >= 0 && index < Storm::kInstances) storm.SetIndex(index);
}

void GetIdx(Storm& storm) {
  int index = -1;
  Tavix_GetIdx(&index);
  Tavix_GetIdx(nullptr);
  storm.ExpectCode(storm.Index(), index);
}

void Crt(Storm& storm) {
  Note(storm, "Crt");
  Model& model = storm.Now();
  storm.ExpectCode(model.exists ? kRefused : 0, Tavix_Crt());
  if (model.exists) return;
  model = {};
  model.exists = true;
  ReadLegend(storm);
}

void Del(Storm& storm) {
  // Instances live for a while.
  if (storm.Now().exists && !storm.Any().OneIn(4)) return;
  Note(storm, "Del");
  storm.ExpectCode(0, Tavix_Del());
  storm.Now() = {};
  for (int index = Storm::kInstances - 1; index >= 0; --index) {
    if (!storm.Models()[static_cast<std::size_t>(index)].exists) continue;
    storm.SetIndex(index);
    break;
  }
}

void Link(Storm& storm, int width, int height) {
  Model& model = storm.Now();
  Note(storm, "LnkRct", width, height);
  const int code = Tavix_LnkRct(storm.Host().AsParent(), 0, 0, width, height, 900);
  storm.ExpectCode(OnInstance(model), code);
  if (!model.exists) return;
  model.linked = true;
  model.window = {};
  model.window.client = ClientSize();
  model.window.column = model.window.client.cy;
}

void LnkRct(Storm& storm) {
  Chance& any = storm.Any();
  if (any.OneIn(6)) {
    Link(storm, any.AnyOf<int>({0, 1, 6, 7, 20, 3000, -5}), any.AnyOf<int>({0, 1, 6, 200, 2000}));
  } else {
    Link(storm, any.Between(100, 320), any.Between(100, 320));
  }
}

void Lnk(Storm& storm) {
  constexpr int kControl = 77;
  Model& model = storm.Now();
  const bool known = storm.Any().OneIn(2);
  if (known) storm.Host().AddControl(kControl, {5, 5, 205, 155});
  const UINT control = known ? kControl : 4711;
  Note(storm, "Lnk", control);
  const int code = Tavix_Lnk(storm.Host().AsParent(), control, 900);
  if (!model.exists) {
    storm.ExpectCode(kRefused, code);
    return;
  }
  storm.Expect(code == 0 || code == kRefused, "Lnk returns " + std::to_string(code));
  model.linked = true;  // a window that could not be made stays, without a handle
  model.window = {};
  model.window.client = ClientSize();
  model.window.column = model.window.client.cy;
}

void Wnd(Storm& storm) {
  storm.Expect((Tavix_Wnd() != nullptr) == storm.Now().linked, "Wnd against the model");
}

void Dsp(Storm& storm) {
  const BYTE show = storm.Any().Flag();
  Note(storm, "Dsp", int{show});
  storm.ExpectCode(OnWindow(storm.Now()), Tavix_Dsp(show));
  storm.Now().window.shown = show != 0;
}

void Dsp3D(Storm& storm) {
  const BYTE on = storm.Any().Flag();
  Note(storm, "Dsp3D", int{on});
  storm.ExpectCode(0, Tavix_Dsp3D(on));
  storm.Now().angle = 0;
  storm.Now().window.ForgetView();
}

void SetBtn(Storm& storm) {
  const BYTE show = storm.Any().Flag();
  Note(storm, "SetBtn", int{show});
  storm.ExpectCode(0, Tavix_SetBtn(show));
  Model& model = storm.Now();
  model.buttons = show != 0;
  model.window.ForgetView();
  model.window.ratio_counts = false;
  if (model.linked) model.window.client = ClientSize();  // the drawing area follows it now
}

void DrwFlg(Storm& storm) {
  const BYTE on = storm.Any().Flag();
  Note(storm, "DrwFlg", int{on});
  storm.ExpectCode(0, Tavix_DrwFlg(on));
  if (storm.Now().exists) storm.Now().auto_redraw = on != 0;
}

void Drw(Storm& storm) {
  const BYTE keep = storm.Any().Flag();
  Note(storm, "Drw", int{keep});
  storm.ExpectCode(OnWindow(storm.Now()), Tavix_Drw(keep));
  if (keep == 0) storm.Now().window.ForgetView();
}

void DrwClr(Storm& storm) {
  if (!storm.Any().OneIn(8)) return;
  Note(storm, "DrwClr");
  storm.ExpectCode(OnInstance(storm.Now()), Tavix_DrwClr());
  storm.Now().ClearData();
}

// ---- View

void SetAng(Storm& storm) {
  const int degrees = storm.Any().OneIn(4) ? storm.Any().Number() : storm.Any().Between(0, 359);
  Note(storm, "SetAng", degrees);
  const bool valid = degrees >= 0 && degrees <= 359;
  storm.ExpectCode(OnInstance(storm.Now(), valid ? 0 : kRefused), Tavix_SetAng(degrees));
  if (!storm.Now().exists || !valid) return;
  storm.Now().angle = degrees;
  storm.Now().window.measured.reset();
  storm.Now().window.scale.reset();
}

void GetAng(Storm& storm) { storm.ExpectCode(kRefused, Tavix_GetAng(nullptr)); }

void SetTatYok(Storm& storm) {
  const int tate = storm.Any().OneIn(3) ? storm.Any().Number() : storm.Any().Between(1, 5);
  const int yoko = storm.Any().OneIn(5) ? storm.Any().Number() : storm.Any().Between(1, 5);
  Note(storm, "SetTatYok", tate, yoko);
  Model& model = storm.Now();
  storm.ExpectCode(OnWindow(model), Tavix_SetTatYok(tate, yoko));
  if (!model.linked) return;
  model.window.ratio = {tate, yoko};
  model.window.ratio_given = model.window.ratio_counts = true;
  model.window.measured.reset();
}

void GetTatYok(Storm& storm) {
  int tate = 0;
  int yoko = 0;
  const int code = Tavix_GetTatYok(&tate, &yoko);
  storm.Expect(code == kRefused || storm.Now().linked, "a ratio without a window");
}

// The view now has its centre here.
void Centred(Storm& storm, double north, double east) {
  storm.Now().window.ForgetView();
  storm.Now().window.centre = {north, east};
}

void Zom(Storm& storm) {
  Chance& any = storm.Any();
  const std::array<double, 4> box{any.Coordinate(), any.Coordinate(), any.Coordinate(),
                                  any.Coordinate()};
  Note(storm, "Zom", box[0], box[1], box[2], box[3]);
  storm.ExpectCode(OnWindow(storm.Now()), Tavix_Zom(box[0], box[1], box[2], box[3]));
  Centred(storm, (box[0] + box[2]) * 0.5, (box[1] + box[3]) * 0.5);
}

void Zom1(Storm& storm) {
  Chance& any = storm.Any();
  const double x = any.Coordinate();
  const double y = any.Coordinate();
  const double radius = any.Length();
  Note(storm, "Zom1", x, y, radius);
  storm.ExpectCode(OnWindow(storm.Now()), Tavix_Zom1(x, y, radius));
  Centred(storm, x, y);
}

void Pan(Storm& storm) {
  const double x = storm.Any().Coordinate();
  const double y = storm.Any().Coordinate();
  Note(storm, "Pan", x, y);
  storm.ExpectCode(OnWindow(storm.Now()), Tavix_Pan(x, y));
  const auto scale = storm.Now().window.scale;
  Centred(storm, x, y);
  storm.Now().window.scale = scale;
}

void Mov(Storm& storm) { storm.ExpectCode(0, Tavix_Mov()); }

// ---- Picking

void ChkCrd(Storm& storm) {
  int visible = -7;
  const double x = storm.Any().Coordinate();
  const double y = storm.Any().Coordinate();
  Note(storm, "ChkCrd", x, y);
  const int code = Tavix_ChkCrd(x, y, &visible);
  storm.Expect(code == 0 || code == kRefused, "ChkCrd returns " + std::to_string(code));
  storm.Expect(code != 0 || visible == 0 || visible == 1, "visible is no flag");
  Tavix_ChkCrd(x, y, nullptr);
}

void ChkCir(Storm& storm) {
  int visible = -7;
  const double x = storm.Any().Coordinate();
  const double radius = storm.Any().Length();
  Note(storm, "ChkCir", x, x, radius);
  const int code = Tavix_ChkCir(x, x, radius, &visible);
  storm.Expect(code != 0 || visible == 0 || visible == 1, "visible is no flag");
}

void GetLstPicCrd(Storm&) {
  int x = 0;
  int y = 0;
  Tavix_GetLstPicCrd(&x, &y);
}

void CrdStt(Storm& storm) {
  const int command = storm.Any().Number();
  Note(storm, "CrdStt", command);
  Tavix_CrdStt(command);
}

void CrdGet(Storm&) {
  double x = 0;
  double y = 0;
  Tavix_CrdGet(&x, &y);
}

void CrdEnd(Storm& storm) {
  Note(storm, "CrdEnd");
  Tavix_CrdEnd();
}

// ---- Points

CString Text(const std::wstring& text) { return CString(text.c_str()); }

void EntPnt(Storm& storm) {
  Chance& any = storm.Any();
  Model& model = storm.Now();
  ModelPoint point{any.Key(), any.Number(), any.Name(), {any.Coordinate(), any.Coordinate()}, -1};
  point.legend = model.point_legend;
  Note(storm, "EntPnt", point.key, point.number, point.name.size(), point.at[0], point.at[1]);
  ModelPoint* old = model.points.Find(point.key);
  const int code =
      Tavix_EntPnt(point.key, point.number, Text(point.name), point.at[0], point.at[1]);
  if (!model.exists) {
    storm.ExpectCode(kRefused, code);
    return;
  }
  if (!old) storm.ExpectCode(0, code);
  ExpectChanged(storm, true, code);
  // With auto-redraw on, a point that is moved by next to nothing stays where it is.
  double x = 0;
  double y = 0;
  storm.ExpectCode(0, Tavix_GetPntCrd(point.key, &x, &y));
  if (old && model.auto_redraw && IsSame(x, old->at[0]) && IsSame(y, old->at[1]))
    point.at = old->at;
  storm.Expect(IsSame(x, point.at[0]) && IsSame(y, point.at[1]), "the point is elsewhere");
  model.points.Enter(point);
}

void ChgPntHid(Storm& storm) {
  const int key = storm.Any().Key();
  const short legend = storm.Any().Legend();
  Note(storm, "ChgPntHid", key, legend);
  ModelPoint* point = storm.Now().points.Find(key);
  ExpectChanged(storm, point != nullptr, Tavix_ChgPntHid(key, legend));
  if (point) point->legend = legend;
}

void ChgPntNoNam(Storm& storm) {
  const int key = storm.Any().Key();
  const int number = storm.Any().Number();
  const std::wstring name = storm.Any().Name();
  Note(storm, "ChgPntNoNam", key, number, name.size());
  ModelPoint* point = storm.Now().points.Find(key);
  ExpectChanged(storm, point != nullptr, Tavix_ChgPntNoNam(key, number, Text(name)));
  if (!point) return;
  point->number = number;
  point->name = name;
}

void ChgPntCrd(Storm& storm) {
  const int key = storm.Any().Key();
  const double x = storm.Any().Coordinate();
  const double y = storm.Any().Coordinate();
  Note(storm, "ChgPntCrd", key, x, y);
  ModelPoint* point = storm.Now().points.Find(key);
  ExpectChanged(storm, point != nullptr, Tavix_ChgPntCrd(key, x, y));
  if (!point) return;
  double kept_x = 0;
  double kept_y = 0;
  storm.ExpectCode(0, Tavix_GetPntCrd(key, &kept_x, &kept_y));
  const bool stays = IsSame(kept_x, point->at[0]) && IsSame(kept_y, point->at[1]);
  if (storm.Now().auto_redraw && stays) return;
  storm.Expect(IsSame(kept_x, x) && IsSame(kept_y, y), "the point is elsewhere");
  point->at = {x, y, 0};
}

void GetPntNoNam(Storm& storm) {
  const int key = storm.Any().Key();
  int number = 0;
  CString name;
  const ModelPoint* point = storm.Now().points.Find(key);
  storm.ExpectCode(point ? 0 : kRefused, Tavix_GetPntNoNam(key, &number, &name));
  storm.ExpectCode(kRefused, Tavix_GetPntNoNam(key, nullptr, &name));
  if (!point) return;
  storm.ExpectCode(point->number, number);
  storm.Expect(point->name == name.GetString(), "another name");
}

void GetPntCrd(Storm& storm) {
  const int key = storm.Any().Key();
  double x = 0;
  double y = 0;
  const ModelPoint* point = storm.Now().points.Find(key);
  storm.ExpectCode(point ? 0 : kRefused, Tavix_GetPntCrd(key, &x, &y));
  if (point) storm.Expect(IsSame(point->at[0], x) && IsSame(point->at[1], y), "elsewhere");
}

void DelEntPnt(Storm& storm) {
  const int key = storm.Any().Key();
  Note(storm, "DelEntPnt", key);
  Model& model = storm.Now();
  const bool known = model.points.Remove(key);
  storm.ExpectCode(known ? 0 : kRefused, Tavix_DelEntPnt(key));
  model.memos.erase(static_cast<std::int16_t>(key));
}

// ---- Legend

std::array<int, 6> AnyLook(Chance& any, bool is_point) {
  const int kind = any.OneIn(8) ? any.Number()
                   : is_point   ? any.Between(1, 11)
                                : any.Between(101, 105);
  const auto size = [&] { return any.OneIn(12) ? any.Number() : any.Between(0, 16); };
  return {kind,
          size(),
          size(),
          size(),
          any.OneIn(12) ? any.Number() : any.Between(0, 4),
          any.Between(0, 0xFFFFFF)};
}

void AddLegend(Storm& storm, bool is_point) {
  Model& model = storm.Now();
  // The drawing of an entity asks for its entry: a storm does not need thousands.
  if (model.legend.size() > 60) return;
  auto look = AnyLook(storm.Any(), is_point);
  auto& [kind, prm1, prm2, prm3, width, color] = look;
  short number = -7;
  int code = 0;
  Note(storm, is_point ? "AddPntHan" : "AddLinHan", kind, width, color, prm1, prm2, prm3);
  if (is_point) {
    code = Tavix_AddPntHan(kind, width, color, prm1, prm2, prm3, &number);
  } else {
    prm1 = static_cast<short>(prm1);
    prm2 = static_cast<short>(prm2);
    prm3 = static_cast<short>(prm3);
    code = Tavix_AddLinHan(kind, static_cast<short>(prm1), static_cast<short>(prm2),
                           static_cast<short>(prm3), width, color, &number);
  }
  storm.ExpectCode(OnInstance(model), code);
  if (!model.exists) return;
  storm.ExpectCode(201 + static_cast<int>(model.legend.size()) - 16, number);
  model.legend[number] = {is_point, look};
}

void ChangeLegend(Storm& storm, bool is_point) {
  Model& model = storm.Now();
  auto look = AnyLook(storm.Any(), is_point);
  auto& [kind, prm1, prm2, prm3, width, color] = look;
  const short number = storm.Any().Legend();
  const auto found = model.legend.find(number);
  Note(storm, is_point ? "ChgPntHan" : "ChgLinHan", number, kind, width, color, prm1, prm2, prm3);
  int code = 0;
  if (is_point) {
    code = Tavix_ChgPntHan(number, kind, width, color, prm1, prm2, prm3);
  } else {
    prm1 = static_cast<short>(prm1);
    prm2 = static_cast<short>(prm2);
    prm3 = static_cast<short>(prm3);
    code = Tavix_ChgLinHan(number, kind, static_cast<short>(prm1), static_cast<short>(prm2),
                           static_cast<short>(prm3), width, color);
  }
  storm.ExpectCode(found != model.legend.end() ? 0 : kRefused, code);
  if (found != model.legend.end()) found->second = {is_point, look};
}

void AddPntHan(Storm& storm) { AddLegend(storm, true); }
void AddLinHan(Storm& storm) { AddLegend(storm, false); }
void ChgPntHan(Storm& storm) { ChangeLegend(storm, true); }
void ChgLinHan(Storm& storm) { ChangeLegend(storm, false); }

void GetPntHan(Storm& storm) {
  const short number = storm.Any().Legend();
  const auto found = storm.Now().legend.find(number);
  std::array<int, 6> values{};
  auto& [kind, prm1, prm2, prm3, width, color] = values;
  const int code = Tavix_GetPntHan(number, &kind, &width, &color, &prm1, &prm2, &prm3);
  storm.ExpectCode(found != storm.Now().legend.end() ? 0 : kRefused, code);
  if (code == 0) storm.Expect(found->second.values == values, "another legend entry");
}

void GetLinHan(Storm& storm) {
  const short number = storm.Any().Legend();
  const auto found = storm.Now().legend.find(number);
  int kind = 0;
  short prm1 = 0;
  short prm2 = 0;
  short prm3 = 0;
  int width = 0;
  int color = 0;
  const int code = Tavix_GetLinHan(number, &kind, &prm1, &prm2, &prm3, &width, &color);
  storm.ExpectCode(found != storm.Now().legend.end() ? 0 : kRefused, code);
  if (code != 0) return;
  const auto& values = found->second.values;
  storm.Expect(values[0] == kind && static_cast<short>(values[1]) == prm1 &&
                   static_cast<short>(values[2]) == prm2 && static_cast<short>(values[3]) == prm3 &&
                   values[4] == width && values[5] == color,
               "another legend entry");
}

void SelPntHan(Storm& storm) {
  const short number = storm.Any().Legend();
  Note(storm, "SelPntHan", number);
  storm.ExpectCode(0, Tavix_SelPntHan(number));
  storm.Now().point_legend = number;
}

void SelLinHan(Storm& storm) {
  const short number = storm.Any().Legend();
  Note(storm, "SelLinHan", number);
  storm.ExpectCode(0, Tavix_SelLinHan(number));
  storm.Now().line_legend = number;
}

void PntHanTtl(Storm& storm) {
  const short number = storm.Any().Legend();
  Note(storm, "PntHanTtl", number);
  const bool built_in = number >= 1 && number <= 11;
  storm.ExpectCode(OnInstance(storm.Now(), built_in ? 0 : kRefused),
                   Tavix_PntHanTtl(number, Text(storm.Any().Name())));
}

// ---- Lines

void EntLin(Storm& storm) {
  const int a = storm.Any().Key();
  const int b = storm.Any().Key();
  Model& model = storm.Now();
  Note(storm, "EntLin", a, b);
  storm.ExpectCode(OnInstance(model), Tavix_EntLin(a, b));
  if (model.exists) model.lines.Enter(a, b, model.line_legend);
}

// What a search for a line that there is not returns.
int MissingLine(const Model& model) { return model.lines.All().empty() ? -3 : kRefused; }

void ChgLinHid(Storm& storm) {
  const int a = storm.Any().Key();
  const int b = storm.Any().Key();
  const short legend = storm.Any().Legend();
  Model& model = storm.Now();
  Note(storm, "ChgLinHid", a, b, legend);
  const int code = Tavix_ChgLinHid(a, b, legend);
  ModelLine* line = model.lines.Find(a, b);
  if (line) {
    ExpectChanged(storm, true, code);
    line->legend = legend;
  } else {
    storm.ExpectCode(OnInstance(model, MissingLine(model)), code);
  }
}

void DelEntLin(Storm& storm) {
  const int a = storm.Any().Key();
  const int b = storm.Any().Key();
  Model& model = storm.Now();
  Note(storm, "DelEntLin", a, b);
  const int missing = OnInstance(model, MissingLine(model));
  storm.ExpectCode(model.lines.Remove(a, b) ? 0 : missing, Tavix_DelEntLin(a, b));
}

void ClrEntLin(Storm& storm) {
  if (!storm.Any().OneIn(6)) return;
  Note(storm, "ClrEntLin");
  storm.ExpectCode(OnInstance(storm.Now()), Tavix_ClrEntLin());
  storm.Now().lines.Clear();
}

// ---- Memos

void EntPntMem(Storm& storm) {
  const int key = storm.Any().Key();
  const auto short_key = static_cast<std::int16_t>(key);
  const std::wstring memo = storm.Any().Name();
  Model& model = storm.Now();
  Note(storm, "EntPntMem", key, memo.size());
  storm.ExpectCode(OnInstance(model), Tavix_EntPntMem(key, Text(memo)));
  if (!model.exists) return;
  if (memo.empty() && model.memos.erase(short_key) > 0) return;
  model.memos[short_key] = memo;
}

void GetPntMem(Storm& storm) {
  const int key = storm.Any().Key();
  CString memo(L"old");
  storm.ExpectCode(0, Tavix_GetPntMem(key, &memo));
  const auto found = storm.Now().memos.find(static_cast<std::int16_t>(key));
  const std::wstring expected = found == storm.Now().memos.end() ? L"" : found->second;
  storm.Expect(expected == memo.GetString(), "another memo");
}

// ---- 3-D points

void EntPnt3(Storm& storm) {
  Chance& any = storm.Any();
  Model& model = storm.Now();
  const ModelPoint point{any.Key(),
                         any.Number(),
                         any.Name(),
                         {any.Coordinate(), any.Coordinate(), any.Coordinate()},
                         model.point_legend};
  Note(storm, "EntPnt3", point.key, point.number, point.at[0], point.at[1], point.at[2]);
  storm.ExpectCode(OnInstance(model), Tavix_EntPnt3(point.key, point.number, Text(point.name),
                                                    point.at[0], point.at[1], point.at[2]));
  if (model.exists) model.points3.Enter(point);
}

void ChgPnt3Hid(Storm& storm) {
  const int key = storm.Any().Key();
  const short legend = storm.Any().Legend();
  Note(storm, "ChgPnt3Hid", key, legend);
  ModelPoint* point = storm.Now().points3.Find(key);
  storm.ExpectCode(point ? 0 : kRefused, Tavix_ChgPnt3Hid(key, legend));
  if (point) point->legend = legend;
}

void ChgPnt3NoNam(Storm& storm) {
  const int key = storm.Any().Key();
  const int number = storm.Any().Number();
  const std::wstring name = storm.Any().Name();
  Note(storm, "ChgPnt3NoNam", key, number);
  ModelPoint* point = storm.Now().points3.Find(key);
  storm.ExpectCode(point ? 0 : kRefused, Tavix_ChgPnt3NoNam(key, number, Text(name)));
  if (!point) return;
  point->number = number;
  point->name = name;
}

void GetPnt3NoNam(Storm& storm) {
  const int key = storm.Any().Key();
  int number = 0;
  CString name;
  const ModelPoint* point = storm.Now().points3.Find(key);
  storm.ExpectCode(point ? 0 : kRefused, Tavix_GetPnt3NoNam(key, &number, &name));
  if (!point) return;
  storm.ExpectCode(point->number, number);
  storm.Expect(point->name == name.GetString(), "another name");
}

void GetPnt3Crd(Storm& storm) {
  const int key = storm.Any().Key();
  std::array<double, 3> at{};
  const ModelPoint* point = storm.Now().points3.Find(key);
  storm.ExpectCode(point ? 0 : kRefused, Tavix_GetPnt3Crd(key, at.data(), &at[1], &at[2]));
  if (point) {
    storm.Expect(std::equal(at.begin(), at.end(), point->at.begin(), IsSame), "elsewhere");
  }
}

void DelEntPnt3(Storm& storm) {
  const int key = storm.Any().Key();
  Note(storm, "DelEntPnt3", key);
  const bool known = storm.Now().points3.Remove(key);
  const int code = Tavix_DelEntPnt3(key);
  storm.Expect((code == 0) == known, "DelEntPnt3 returns " + std::to_string(code));
}

// ---- Figures

void AddPiece(Storm& storm, ModelPiece::Kind kind, std::vector<double> numbers, int code) {
  Model& model = storm.Now();
  if (!model.exists) {
    storm.ExpectCode(kRefused, code);
  } else if (code == 0) {
    model.pieces.push_back({kind, model.figure, model.figure_legend, std::move(numbers)});
    ++model.pieces_made;
  }
}

void FigStt(Storm& storm) {
  const int figure = storm.Any().OneIn(10) ? storm.Any().Number() : storm.Any().Between(1, 12);
  const int legend = storm.Any().OneIn(10) ? storm.Any().Number() : int{storm.Any().Legend()};
  Note(storm, "FigStt", figure, legend);
  Model& model = storm.Now();
  storm.ExpectCode(OnInstance(model), Tavix_FigStt(figure, legend));
  model.figure = figure;
  model.figure_legend = legend;
}

void FigMdlLin(Storm& storm) {
  Chance& any = storm.Any();
  const std::vector<double> n{any.Coordinate(), any.Coordinate(), any.Coordinate(),
                              any.Coordinate()};
  Note(storm, "FigMdlLin", n[0], n[1], n[2], n[3]);
  const int code = Tavix_FigMdlLin(n[0], n[1], n[2], n[3]);
  storm.ExpectCode(OnInstance(storm.Now()), code);
  AddPiece(storm, ModelPiece::Kind::kLine, n, code);
}

void FigMdlCir(Storm& storm) {
  Chance& any = storm.Any();
  const std::vector<double> n{any.Coordinate(), any.Coordinate(), any.Length()};
  Note(storm, "FigMdlCir", n[0], n[1], n[2]);
  const int code = Tavix_FigMdlCir(n[0], n[1], n[2]);
  storm.ExpectCode(OnInstance(storm.Now()), code);
  AddPiece(storm, ModelPiece::Kind::kCircle, n, code);
}

void FigMdlPly(Storm& storm) {
  Chance& any = storm.Any();
  const int count = any.OneIn(10) ? any.Between(-2, 1) : any.Between(2, 30);
  std::vector<double> n;
  for (int i = 0; i < 2 * std::max(count, 0); ++i) n.push_back(any.Coordinate());
  Note(storm, "FigMdlPly", count);
  const int code = Tavix_FigMdlPly(count, n.data(), n.data() + std::max(count, 0));
  storm.ExpectCode(OnInstance(storm.Now()), code);
  storm.ExpectCode(OnInstance(storm.Now(), kRefused), Tavix_FigMdlPly(3, nullptr, n.data()));
  if (count < 0) {
    storm.Now().figures_known = false;
  } else {
    AddPiece(storm, ModelPiece::Kind::kPolyline, n, code);
  }
}

void FigMdlArc(Storm& storm) {
  Chance& any = storm.Any();
  const std::vector<double> n{any.Coordinate(), any.Coordinate(), any.Coordinate(),
                              any.Coordinate(), any.OneIn(2) ? any.Length() : 800 - any.Length()};
  Note(storm, "FigMdlArc", n[0], n[1], n[2], n[3], n[4]);
  const int code = Tavix_FigMdlArc(n[0], n[1], n[2], n[3], n[4]);
  storm.Expect(code == 0 || code == kRefused, "FigMdlArc returns " + std::to_string(code));
  AddPiece(storm, ModelPiece::Kind::kArc, n, code);
}

void FigMdlClo(Storm& storm) {
  Chance& any = storm.Any();
  const std::vector<double> n{any.Coordinate(),
                              any.Coordinate(),
                              any.Coordinate(),
                              any.Coordinate(),
                              any.OneIn(2) ? 0 : any.Length(),
                              any.Length(),
                              any.Length()};
  Note(storm, "FigMdlClo", n[0], n[1], n[2], n[3], n[4], n[5], n[6]);
  const int code = Tavix_FigMdlClo(n[0], n[1], n[2], n[3], n[4], n[5], n[6]);
  storm.Expect(code == 0 || code == kRefused, "FigMdlClo returns " + std::to_string(code));
  AddPiece(storm, ModelPiece::Kind::kClothoid, n, code);
}

void FigEnd(Storm& storm) {
  Note(storm, "FigEnd");
  ExpectChanged(storm, storm.Now().exists, Tavix_FigEnd());
}

void DelFig(Storm& storm) {
  const int figure = storm.Any().OneIn(10) ? storm.Any().Number() : storm.Any().Between(1, 12);
  Model& model = storm.Now();
  Note(storm, "DelFig", figure);
  const bool some = model.exists && model.pieces_made > 0;
  const int code = Tavix_DelFig(figure);
  if (model.figures_known || !model.exists) ExpectChanged(storm, some, code);
  std::erase_if(model.pieces, [=](const ModelPiece& piece) { return piece.figure == figure; });
}

// ---- Overlays

void SetWak(Storm& storm) {
  Chance& any = storm.Any();
  const BYTE on = any.Flag();
  const int per_inch = any.OneIn(6) ? any.Number() : 96;
  const int units = any.OneIn(6) ? any.Number() : any.Between(50, 800);
  Note(storm, "SetWak", int{on}, per_inch, units);
  storm.ExpectCode(OnWindow(storm.Now()), Tavix_SetWak(on, per_inch, units, per_inch, units));
  storm.Now().window.has_frame = storm.Now().linked && on != 0;
}

void WakDsp(Storm& storm) {
  storm.ExpectCode(OnWindow(storm.Now()), Tavix_WakDsp(storm.Any().Flag()));
}

void SetWakScl(Storm& storm) {
  const int scale = storm.Any().OneIn(4) ? storm.Any().Number() : storm.Any().Between(100, 5000);
  Note(storm, "SetWakScl", scale);
  Tavix_SetWakScl(scale);
  storm.Now().window.ForgetView();
}

void GetWakScl(Storm&) {
  int scale = 0;
  Tavix_GetWakScl(&scale);
}

void SetWakGen(Storm& storm) {
  const double x = storm.Any().Coordinate();
  Note(storm, "SetWakGen", x, x);
  Tavix_SetWakGen(x, x);
  storm.Now().window.ForgetView();
}

void GetWakGen(Storm&) {
  double x = 0;
  double y = 0;
  Tavix_GetWakGen(&x, &y);
}

void SclBarDsp(Storm& storm) {
  storm.ExpectCode(OnWindow(storm.Now()), Tavix_SclBarDsp(storm.Any().Flag()));
}

void MvPntStt(Storm& storm) {
  const int legend = storm.Any().OneIn(10) ? storm.Any().Number() : int{storm.Any().Legend()};
  Note(storm, "MvPntStt", legend);
  Tavix_MvPntStt(legend);
}

void MvPntRub(Storm& storm) {
  const double x = storm.Any().Coordinate();
  Note(storm, "MvPntRub", x, x);
  storm.ExpectCode(OnWindow(storm.Now()), Tavix_MvPntRub(x, x));
}

void MvPntMov(Storm& storm) {
  const double x = storm.Any().Coordinate();
  Note(storm, "MvPntMov", x, -x);
  storm.ExpectCode(OnWindow(storm.Now()), Tavix_MvPntMov(x, -x));
}

void MvPntEnd(Storm& storm) {
  Note(storm, "MvPntEnd");
  storm.ExpectCode(OnWindow(storm.Now()), Tavix_MvPntEnd());
}

void VoStt(Storm& storm) {
  Note(storm, "VoStt");
  storm.ExpectCode(OnWindow(storm.Now()), Tavix_VoStt());
  storm.Now().window.trace.clear();
}

void VoAdd(Storm& storm) {
  const double x = storm.Any().Coordinate();
  const double y = storm.Any().Coordinate();
  Note(storm, "VoAdd", x, y);
  storm.ExpectCode(OnWindow(storm.Now()), Tavix_VoAdd(x, y));
  if (storm.Now().linked) storm.Now().window.trace.push_back({x, y});
}

void VoDel(Storm& storm) {
  Note(storm, "VoDel");
  std::vector<ModelGround>& trace = storm.Now().window.trace;
  storm.ExpectCode(trace.empty() ? kRefused : 0, Tavix_VoDel());
  if (!trace.empty()) trace.pop_back();
}

void VoLst(Storm& storm) {
  int count = 0;
  if (Tavix_VoGet(&count) != 0) return;
  storm.Expect(count >= 0, "a negative number of vertices");
  std::vector<double> x(static_cast<std::size_t>(count));
  std::vector<double> y(static_cast<std::size_t>(count));
  storm.ExpectCode(0, Tavix_VoLst(x.data(), y.data()));
  double one_x = 0;
  double one_y = 0;
  storm.ExpectCode(kRefused, Tavix_VoIdx(count, &one_x, &one_y));
  if (count == 0) return;
  storm.ExpectCode(0, Tavix_VoIdx(count - 1, &one_x, &one_y));
  storm.Expect(IsSame(one_x, x.back()) && IsSame(one_y, y.back()), "another last vertex");
}

void VoGet(Storm& storm) { storm.ExpectCode(kRefused, Tavix_VoGet(nullptr)); }

void VoIdx(Storm& storm) {
  double x = 0;
  double y = 0;
  Tavix_VoIdx(storm.Any().Number(), &x, &y);
}

void VoEnd(Storm& storm) {
  Note(storm, "VoEnd");
  storm.ExpectCode(OnWindow(storm.Now()), Tavix_VoEnd());
  storm.Now().window.trace.clear();
}

// ---- One-bit picture

void GrpStt(Storm& storm) {
  Chance& any = storm.Any();
  const int height = any.OneIn(8) ? any.Number() : any.Between(1, 300);
  const int width = any.OneIn(8) ? any.Between(-2, 2) : any.Between(1, 300);
  Note(storm, "GrpStt", height, width);
  const int code = Tavix_GrpStt(height, width);
  storm.Expect(code == kRefused || (code == 0 && storm.Now().linked),
               "GrpStt returns " + std::to_string(code));
}

void GrpGet(Storm& storm) {
  Chance& any = storm.Any();
  for (int i = 0; i < 20; ++i) {
    int ink = -7;
    const int row = any.OneIn(5) ? any.Number() : any.Between(0, 300);
    const int column = any.OneIn(5) ? any.Number() : any.Between(0, 300);
    storm.ExpectCode(OnWindow(storm.Now()), Tavix_GrpGet(row, column, &ink));
    storm.Expect(!storm.Now().linked || ink == 0 || ink == 1, "ink is no flag");
  }
}

void GrpEnd(Storm& storm) {
  Note(storm, "GrpEnd");
  storm.ExpectCode(OnWindow(storm.Now()), Tavix_GrpEnd());
}

struct Call {
  int weight;
  void (*make)(Storm&);
};

// All 84.
constexpr std::array kCalls{
    Call{12, SetIdx},      Call{1, GetIdx},      Call{14, Crt},       Call{3, Del},
    Call{2, Lnk},          Call{4, LnkRct},      Call{1, Wnd},        Call{4, Dsp},
    Call{3, Dsp3D},        Call{2, SetBtn},      Call{3, DrwFlg},     Call{8, Drw},
    Call{1, DrwClr},       Call{4, SetAng},      Call{1, GetAng},     Call{2, SetTatYok},
    Call{1, GetTatYok},    Call{4, Zom},         Call{4, Zom1},       Call{4, Pan},
    Call{1, Mov},          Call{2, ChkCrd},      Call{2, ChkCir},     Call{1, GetLstPicCrd},
    Call{2, CrdStt},       Call{2, CrdGet},      Call{2, CrdEnd},     Call{30, EntPnt},
    Call{5, ChgPntHid},    Call{5, ChgPntNoNam}, Call{6, ChgPntCrd},  Call{5, GetPntNoNam},
    Call{5, GetPntCrd},    Call{5, DelEntPnt},   Call{3, AddPntHan},  Call{3, ChgPntHan},
    Call{3, GetPntHan},    Call{5, SelPntHan},   Call{1, PntHanTtl},  Call{3, AddLinHan},
    Call{3, ChgLinHan},    Call{3, GetLinHan},   Call{5, SelLinHan},  Call{20, EntLin},
    Call{5, ChgLinHid},    Call{5, DelEntLin},   Call{1, ClrEntLin},  Call{6, EntPntMem},
    Call{6, GetPntMem},    Call{10, EntPnt3},    Call{3, ChgPnt3Hid}, Call{3, ChgPnt3NoNam},
    Call{3, GetPnt3NoNam}, Call{3, GetPnt3Crd},  Call{3, DelEntPnt3}, Call{6, FigStt},
    Call{4, FigMdlLin},    Call{4, FigMdlCir},   Call{4, FigMdlPly},  Call{4, FigMdlArc},
    Call{4, FigMdlClo},    Call{4, FigEnd},      Call{3, DelFig},     Call{3, SetWak},
    Call{2, WakDsp},       Call{2, SetWakScl},   Call{1, GetWakScl},  Call{2, SetWakGen},
    Call{1, GetWakGen},    Call{2, SclBarDsp},   Call{2, MvPntStt},   Call{2, MvPntRub},
    Call{5, MvPntMov},     Call{2, MvPntEnd},    Call{2, VoStt},      Call{6, VoAdd},
    Call{3, VoDel},        Call{1, VoGet},       Call{3, VoLst},      Call{1, VoIdx},
    Call{2, VoEnd},        Call{2, GrpStt},      Call{2, GrpGet},     Call{1, GrpEnd},
};
static_assert(kCalls.size() == 84);

// A change of a line's legend to the one it has: what is there is found, what is not is not.
void AskForLine(Storm& storm) {
  Model& model = storm.Now();
  const int a = storm.Any().Key();
  const int b = storm.Any().Key();
  const ModelLine* line = model.lines.Find(a, b);
  const int code = Tavix_ChgLinHid(a, b, line ? line->legend : short{1});
  if (line) {
    ExpectChanged(storm, true, code);
  } else {
    storm.ExpectCode(OnInstance(model, MissingLine(model)), code);
  }
}

// The deletion of a number that no piece has: whether there are figures at all.
void AskForFigures(Storm& storm) {
  constexpr int kNoFigure = 987654321;
  const Model& model = storm.Now();
  if (model.exists && !model.figures_known) return;
  ExpectChanged(storm, model.exists && model.pieces_made > 0, Tavix_DelFig(kNoFigure));
}

}  // namespace

void ReadBack(Storm& storm) {
  GetPntNoNam(storm);
  GetPntCrd(storm);
  GetPnt3NoNam(storm);
  GetPnt3Crd(storm);
  GetPntMem(storm);
  GetPntHan(storm);
  GetLinHan(storm);
  AskForLine(storm);
  AskForFigures(storm);
}

void MakeCall(Storm& storm) {
  int all = 0;
  for (const Call& call : kCalls) all += call.weight;
  int chosen = storm.Any().Between(1, all);
  for (const Call& call : kCalls) {
    chosen -= call.weight;
    if (chosen > 0) continue;
    call.make(storm);
    return;
  }
}

}  // namespace tavix::storm
