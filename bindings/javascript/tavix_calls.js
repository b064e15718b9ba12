// Made from tavix.h by bindings/make_bindings.py; changes belong there.
// Units, ranges and codes: tavix_c.h.
'use strict';

const constants = {
  // What the layer itself refuses: the codes of its own.
  NO_SUCH_INSTANCE: -101,  // an instance outside 0..4
  WRONG_THREAD: -102,      // called on another thread than that of the instances
  NULL_OUTPUT: -103,       // a null where the call has to write
  FAILED: -104,            // no memory, or an exception within the call

  // Pixels that the column of buttons takes from the drawing area, at its right.
  BUTTON_COLUMN: 20,

  // Lines and memos name their points by 16 bits of a key: the keys that stand for themselves reach
  // from -32768 to this one.
  LARGEST_LINE_KEY: 32767,

  // The longest memo that is sure to be kept, in UTF-16 units: what one record of the device's
  // store holds.
  LONGEST_MEMO: 32734,

  // The projection of the side view. With the plan `height` pixels high, a plan pixel that lies
  // `right` of its left edge and `up` from its bottom edge becomes the pixel
  //
  //     x = SIDE_ACROSS * (SIDE_UP * up + SIDE_RIGHT * right)
  //     y = height / 2 - SIDE_RISE * (SIDE_UP * up - SIDE_RIGHT * right)
  //
  // A height above the height base adds its metres at the plan's scale, straight up.
  SIDE_RIGHT: 0.9,                  // of a length to the right
  SIDE_UP: 0.7,                     // of a length upward
  SIDE_ACROSS: 0.8660254037844387,  // cos 30 degrees
  SIDE_RISE: 0.5,                   // sin 30 degrees
};

// Each call of tavix_c.dll, one to one, by its name without TavixC_.
const prototypes = [
  // The layer
  'int __cdecl TavixC_Version()',
  'int __cdecl TavixC_LastError(_Out_ uint16_t* text, int capacity, _Out_ int* length)',
  'int __cdecl TavixC_PreTranslate(void* message)',
  // Instances and their windows
  'int __cdecl TavixC_SetIdx(int index)',
  'int __cdecl TavixC_GetIdx(_Out_ int* index)',
  'int __cdecl TavixC_Crt(int instance)',
  'int __cdecl TavixC_Del(int instance)',
  'int __cdecl TavixC_Lnk(int instance, void* parent, uint controlId, uint notifyId)',
  'int __cdecl TavixC_LnkRct(int instance, void* parent, int left, int top, int right, int bottom, uint notifyId)',
  'void* __cdecl TavixC_Wnd(int instance)',
  'int __cdecl TavixC_Dsp(int instance, int show)',
  'int __cdecl TavixC_Dsp3D(int instance, int on)',
  'int __cdecl TavixC_SetBtn(int instance, int show)',
  'int __cdecl TavixC_DrwFlg(int instance, int on)',
  'int __cdecl TavixC_Drw(int instance, int keepView)',
  'int __cdecl TavixC_DrwClr(int instance)',
  // View
  'int __cdecl TavixC_SetAng(int instance, int degrees)',
  'int __cdecl TavixC_GetAng(int instance, _Out_ int* degrees)',
  'int __cdecl TavixC_SetTatYok(int instance, int tate, int yoko)',
  'int __cdecl TavixC_GetTatYok(int instance, _Out_ int* tate, _Out_ int* yoko)',
  'int __cdecl TavixC_Zom(int instance, double X1, double Y1, double X2, double Y2)',
  'int __cdecl TavixC_Zom1(int instance, double X, double Y, double radius)',
  'int __cdecl TavixC_Pan(int instance, double X, double Y)',
  'int __cdecl TavixC_Mov(int instance)',
  // Picking
  'int __cdecl TavixC_ChkCrd(int instance, double X, double Y, _Out_ int* visible)',
  'int __cdecl TavixC_ChkCir(int instance, double X, double Y, double radius, _Out_ int* visible)',
  'int __cdecl TavixC_GetLstPicCrd(int instance, _Out_ int* x, _Out_ int* y)',
  'int __cdecl TavixC_CrdStt(int instance, int command)',
  'int __cdecl TavixC_CrdGet(int instance, _Out_ double* X, _Out_ double* Y)',
  'int __cdecl TavixC_CrdEnd(int instance)',
  // Points
  'int __cdecl TavixC_EntPnt(int instance, int key, int number, str16 name, double x, double y)',
  'int __cdecl TavixC_ChgPntHid(int instance, int key, short legend)',
  'int __cdecl TavixC_ChgPntNoNam(int instance, int key, int number, str16 name)',
  'int __cdecl TavixC_ChgPntCrd(int instance, int key, double x, double y)',
  'int __cdecl TavixC_GetPntNoNam(int instance, int key, _Out_ int* number, _Out_ uint16_t* name, int capacity, _Out_ int* length)',
  'int __cdecl TavixC_GetPntCrd(int instance, int key, _Out_ double* x, _Out_ double* y)',
  'int __cdecl TavixC_DelEntPnt(int instance, int key)',
  // Legend
  'int __cdecl TavixC_AddPntHan(int instance, int kind, int width, int color, int prm1, int prm2, int prm3, _Out_ short* number)',
  'int __cdecl TavixC_ChgPntHan(int instance, short number, int kind, int width, int color, int prm1, int prm2, int prm3)',
  'int __cdecl TavixC_GetPntHan(int instance, short number, _Out_ int* kind, _Out_ int* width, _Out_ int* color, _Out_ int* prm1, _Out_ int* prm2, _Out_ int* prm3)',
  'int __cdecl TavixC_SelPntHan(int instance, short number)',
  'int __cdecl TavixC_PntHanTtl(int instance, short number, str16 title)',
  'int __cdecl TavixC_AddLinHan(int instance, int kind, short prm1, short prm2, short prm3, int width, int color, _Out_ short* number)',
  'int __cdecl TavixC_ChgLinHan(int instance, short number, int kind, short prm1, short prm2, short prm3, int width, int color)',
  'int __cdecl TavixC_GetLinHan(int instance, short number, _Out_ int* kind, _Out_ short* prm1, _Out_ short* prm2, _Out_ short* prm3, _Out_ int* width, _Out_ int* color)',
  'int __cdecl TavixC_SelLinHan(int instance, short number)',
  // Lines
  'int __cdecl TavixC_EntLin(int instance, int keyA, int keyB)',
  'int __cdecl TavixC_ChgLinHid(int instance, int keyA, int keyB, short legend)',
  'int __cdecl TavixC_DelEntLin(int instance, int keyA, int keyB)',
  'int __cdecl TavixC_ClrEntLin(int instance)',
  // Memos
  'int __cdecl TavixC_EntPntMem(int instance, int key, str16 memo)',
  'int __cdecl TavixC_GetPntMem(int instance, int key, _Out_ uint16_t* memo, int capacity, _Out_ int* length)',
  // 3-D points
  'int __cdecl TavixC_EntPnt3(int instance, int key, int number, str16 name, double x, double y, double z)',
  'int __cdecl TavixC_ChgPnt3Hid(int instance, int key, short legend)',
  'int __cdecl TavixC_ChgPnt3NoNam(int instance, int key, int number, str16 name)',
  'int __cdecl TavixC_GetPnt3NoNam(int instance, int key, _Out_ int* number, _Out_ uint16_t* name, int capacity, _Out_ int* length)',
  'int __cdecl TavixC_GetPnt3Crd(int instance, int key, _Out_ double* x, _Out_ double* y, _Out_ double* z)',
  'int __cdecl TavixC_DelEntPnt3(int instance, int key)',
  // Figures
  'int __cdecl TavixC_FigStt(int instance, int figure, int legend)',
  'int __cdecl TavixC_FigMdlLin(int instance, double x1, double y1, double x2, double y2)',
  'int __cdecl TavixC_FigMdlCir(int instance, double x, double y, double radius)',
  'int __cdecl TavixC_FigMdlPly(int instance, int count, const double* x, const double* y)',
  'int __cdecl TavixC_FigMdlArc(int instance, double startX, double startY, double endX, double endY, double radius)',
  'int __cdecl TavixC_FigMdlClo(int instance, double startX, double startY, double endX, double endY, double startRadius, double A, double endRadius)',
  'int __cdecl TavixC_FigEnd(int instance)',
  'int __cdecl TavixC_DelFig(int instance, int figure)',
  // Paper frame and scale bar
  'int __cdecl TavixC_SetWak(int instance, int on, int heightPerInch, int heightUnits, int widthPerInch, int widthUnits)',
  'int __cdecl TavixC_WakDsp(int instance, int show)',
  'int __cdecl TavixC_SetWakScl(int instance, int N)',
  'int __cdecl TavixC_GetWakScl(int instance, _Out_ int* N)',
  'int __cdecl TavixC_SetWakGen(int instance, double X, double Y)',
  'int __cdecl TavixC_GetWakGen(int instance, _Out_ double* X, _Out_ double* Y)',
  'int __cdecl TavixC_SclBarDsp(int instance, int show)',
  // Moving a point
  'int __cdecl TavixC_MvPntStt(int instance, int legend)',
  'int __cdecl TavixC_MvPntRub(int instance, double X, double Y)',
  'int __cdecl TavixC_MvPntMov(int instance, double X, double Y)',
  'int __cdecl TavixC_MvPntEnd(int instance)',
  // Traced polyline
  'int __cdecl TavixC_VoStt(int instance)',
  'int __cdecl TavixC_VoAdd(int instance, double X, double Y)',
  'int __cdecl TavixC_VoDel(int instance)',
  'int __cdecl TavixC_VoGet(int instance, _Out_ int* count)',
  'int __cdecl TavixC_VoLst(int instance, _Out_ double* X, _Out_ double* Y)',
  'int __cdecl TavixC_VoIdx(int instance, int index, _Out_ double* X, _Out_ double* Y)',
  'int __cdecl TavixC_VoEnd(int instance)',
  // One-bit picture
  'int __cdecl TavixC_GrpStt(int instance, int height, int width)',
  'int __cdecl TavixC_GrpGet(int instance, int row, int column, _Out_ int* ink)',
  'int __cdecl TavixC_GrpEnd(int instance)',
];

// Loads the library: an object of functions.
function load(koffi, file) {
  const library = koffi.load(file);
  const calls = {};
  for (const prototype of prototypes) {
    const name = /TavixC_(\w+)/.exec(prototype)[1];
    calls[name] = library.func(prototype);
  }
  return calls;
}

module.exports = { constants, load };
