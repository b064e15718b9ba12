// Made from tavix.h by bindings/make_bindings.py; changes belong there.
// Units, ranges and codes: tavix_c.h.
unit TavixCalls;

{$IFDEF FPC}{$MODE DELPHI}{$ENDIF}

interface

const
  TavixLibrary = 'tavix_c.dll';

  // What the layer itself refuses: the codes of its own.
  TavixNoSuchInstance = -101;  // an instance outside 0..4
  TavixWrongThread = -102;     // called on another thread than that of the instances
  TavixNullOutput = -103;      // a null where the call has to write
  TavixFailed = -104;          // no memory, or an exception within the call

  // Pixels that the column of buttons takes from the drawing area, at its right.
  TavixButtonColumn = 20;

  // Lines and memos name their points by 16 bits of a key: the keys that stand for themselves reach
  // from -32768 to this one.
  TavixLargestLineKey = 32767;

  // The longest memo that is sure to be kept, in UTF-16 units: what one record of the device's
  // store holds.
  TavixLongestMemo = 32734;

  // The projection of the side view. With the plan `height` pixels high, a plan pixel that lies
  // `right` of its left edge and `up` from its bottom edge becomes the pixel
  //
  //     x = TavixSideAcross * (TavixSideUp * up + TavixSideRight * right)
  //     y = height / 2 - TavixSideRise * (TavixSideUp * up - TavixSideRight * right)
  //
  // A height above the height base adds its metres at the plan's scale, straight up.
  TavixSideRight = 0.9;                  // of a length to the right
  TavixSideUp = 0.7;                     // of a length upward
  TavixSideAcross = 0.8660254037844387;  // cos 30 degrees
  TavixSideRise = 0.5;                   // sin 30 degrees

// ---- The layer

function TavixC_Version: Integer;
  cdecl; external TavixLibrary name 'TavixC_Version';
function TavixC_LastError(text: PWideChar; capacity: Integer; length: PInteger): Integer;
  cdecl; external TavixLibrary name 'TavixC_LastError';
function TavixC_PreTranslate(message: Pointer): Integer;
  cdecl; external TavixLibrary name 'TavixC_PreTranslate';

// ---- Instances and their windows

function TavixC_SetIdx(index: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_SetIdx';
function TavixC_GetIdx(index: PInteger): Integer;
  cdecl; external TavixLibrary name 'TavixC_GetIdx';
function TavixC_Crt(instance: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_Crt';
function TavixC_Del(instance: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_Del';
function TavixC_Lnk(instance: Integer; parent: Pointer; controlId: Cardinal; notifyId: Cardinal): Integer;
  cdecl; external TavixLibrary name 'TavixC_Lnk';
function TavixC_LnkRct(instance: Integer; parent: Pointer; left: Integer; top: Integer; right: Integer; bottom: Integer; notifyId: Cardinal): Integer;
  cdecl; external TavixLibrary name 'TavixC_LnkRct';
function TavixC_Wnd(instance: Integer): Pointer;
  cdecl; external TavixLibrary name 'TavixC_Wnd';
function TavixC_Dsp(instance: Integer; show: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_Dsp';
function TavixC_Dsp3D(instance: Integer; on: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_Dsp3D';
function TavixC_SetBtn(instance: Integer; show: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_SetBtn';
function TavixC_DrwFlg(instance: Integer; on: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_DrwFlg';
function TavixC_Drw(instance: Integer; keepView: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_Drw';
function TavixC_DrwClr(instance: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_DrwClr';

// ---- View

function TavixC_SetAng(instance: Integer; degrees: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_SetAng';
function TavixC_GetAng(instance: Integer; degrees: PInteger): Integer;
  cdecl; external TavixLibrary name 'TavixC_GetAng';
function TavixC_SetTatYok(instance: Integer; tate: Integer; yoko: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_SetTatYok';
function TavixC_GetTatYok(instance: Integer; tate: PInteger; yoko: PInteger): Integer;
  cdecl; external TavixLibrary name 'TavixC_GetTatYok';
function TavixC_Zom(instance: Integer; X1: Double; Y1: Double; X2: Double; Y2: Double): Integer;
  cdecl; external TavixLibrary name 'TavixC_Zom';
function TavixC_Zom1(instance: Integer; X: Double; Y: Double; radius: Double): Integer;
  cdecl; external TavixLibrary name 'TavixC_Zom1';
function TavixC_Pan(instance: Integer; X: Double; Y: Double): Integer;
  cdecl; external TavixLibrary name 'TavixC_Pan';
function TavixC_Mov(instance: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_Mov';

// ---- Picking

function TavixC_ChkCrd(instance: Integer; X: Double; Y: Double; visible: PInteger): Integer;
  cdecl; external TavixLibrary name 'TavixC_ChkCrd';
function TavixC_ChkCir(instance: Integer; X: Double; Y: Double; radius: Double; visible: PInteger): Integer;
  cdecl; external TavixLibrary name 'TavixC_ChkCir';
function TavixC_GetLstPicCrd(instance: Integer; x: PInteger; y: PInteger): Integer;
  cdecl; external TavixLibrary name 'TavixC_GetLstPicCrd';
function TavixC_CrdStt(instance: Integer; command: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_CrdStt';
function TavixC_CrdGet(instance: Integer; X: PDouble; Y: PDouble): Integer;
  cdecl; external TavixLibrary name 'TavixC_CrdGet';
function TavixC_CrdEnd(instance: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_CrdEnd';

// ---- Points

function TavixC_EntPnt(instance: Integer; key: Integer; number: Integer; name: PWideChar; x: Double; y: Double): Integer;
  cdecl; external TavixLibrary name 'TavixC_EntPnt';
function TavixC_ChgPntHid(instance: Integer; key: Integer; legend: SmallInt): Integer;
  cdecl; external TavixLibrary name 'TavixC_ChgPntHid';
function TavixC_ChgPntNoNam(instance: Integer; key: Integer; number: Integer; name: PWideChar): Integer;
  cdecl; external TavixLibrary name 'TavixC_ChgPntNoNam';
function TavixC_ChgPntCrd(instance: Integer; key: Integer; x: Double; y: Double): Integer;
  cdecl; external TavixLibrary name 'TavixC_ChgPntCrd';
function TavixC_GetPntNoNam(instance: Integer; key: Integer; number: PInteger; name: PWideChar; capacity: Integer; length: PInteger): Integer;
  cdecl; external TavixLibrary name 'TavixC_GetPntNoNam';
function TavixC_GetPntCrd(instance: Integer; key: Integer; x: PDouble; y: PDouble): Integer;
  cdecl; external TavixLibrary name 'TavixC_GetPntCrd';
function TavixC_DelEntPnt(instance: Integer; key: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_DelEntPnt';

// ---- Legend

function TavixC_AddPntHan(instance: Integer; kind: Integer; width: Integer; color: Integer; prm1: Integer; prm2: Integer; prm3: Integer; number: PSmallInt): Integer;
  cdecl; external TavixLibrary name 'TavixC_AddPntHan';
function TavixC_ChgPntHan(instance: Integer; number: SmallInt; kind: Integer; width: Integer; color: Integer; prm1: Integer; prm2: Integer; prm3: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_ChgPntHan';
function TavixC_GetPntHan(instance: Integer; number: SmallInt; kind: PInteger; width: PInteger; color: PInteger; prm1: PInteger; prm2: PInteger; prm3: PInteger): Integer;
  cdecl; external TavixLibrary name 'TavixC_GetPntHan';
function TavixC_SelPntHan(instance: Integer; number: SmallInt): Integer;
  cdecl; external TavixLibrary name 'TavixC_SelPntHan';
function TavixC_PntHanTtl(instance: Integer; number: SmallInt; title: PWideChar): Integer;
  cdecl; external TavixLibrary name 'TavixC_PntHanTtl';
function TavixC_AddLinHan(instance: Integer; kind: Integer; prm1: SmallInt; prm2: SmallInt; prm3: SmallInt; width: Integer; color: Integer; number: PSmallInt): Integer;
  cdecl; external TavixLibrary name 'TavixC_AddLinHan';
function TavixC_ChgLinHan(instance: Integer; number: SmallInt; kind: Integer; prm1: SmallInt; prm2: SmallInt; prm3: SmallInt; width: Integer; color: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_ChgLinHan';
function TavixC_GetLinHan(instance: Integer; number: SmallInt; kind: PInteger; prm1: PSmallInt; prm2: PSmallInt; prm3: PSmallInt; width: PInteger; color: PInteger): Integer;
  cdecl; external TavixLibrary name 'TavixC_GetLinHan';
function TavixC_SelLinHan(instance: Integer; number: SmallInt): Integer;
  cdecl; external TavixLibrary name 'TavixC_SelLinHan';

// ---- Lines

function TavixC_EntLin(instance: Integer; keyA: Integer; keyB: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_EntLin';
function TavixC_ChgLinHid(instance: Integer; keyA: Integer; keyB: Integer; legend: SmallInt): Integer;
  cdecl; external TavixLibrary name 'TavixC_ChgLinHid';
function TavixC_DelEntLin(instance: Integer; keyA: Integer; keyB: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_DelEntLin';
function TavixC_ClrEntLin(instance: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_ClrEntLin';

// ---- Memos

function TavixC_EntPntMem(instance: Integer; key: Integer; memo: PWideChar): Integer;
  cdecl; external TavixLibrary name 'TavixC_EntPntMem';
function TavixC_GetPntMem(instance: Integer; key: Integer; memo: PWideChar; capacity: Integer; length: PInteger): Integer;
  cdecl; external TavixLibrary name 'TavixC_GetPntMem';

// ---- 3-D points

function TavixC_EntPnt3(instance: Integer; key: Integer; number: Integer; name: PWideChar; x: Double; y: Double; z: Double): Integer;
  cdecl; external TavixLibrary name 'TavixC_EntPnt3';
function TavixC_ChgPnt3Hid(instance: Integer; key: Integer; legend: SmallInt): Integer;
  cdecl; external TavixLibrary name 'TavixC_ChgPnt3Hid';
function TavixC_ChgPnt3NoNam(instance: Integer; key: Integer; number: Integer; name: PWideChar): Integer;
  cdecl; external TavixLibrary name 'TavixC_ChgPnt3NoNam';
function TavixC_GetPnt3NoNam(instance: Integer; key: Integer; number: PInteger; name: PWideChar; capacity: Integer; length: PInteger): Integer;
  cdecl; external TavixLibrary name 'TavixC_GetPnt3NoNam';
function TavixC_GetPnt3Crd(instance: Integer; key: Integer; x: PDouble; y: PDouble; z: PDouble): Integer;
  cdecl; external TavixLibrary name 'TavixC_GetPnt3Crd';
function TavixC_DelEntPnt3(instance: Integer; key: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_DelEntPnt3';

// ---- Figures

function TavixC_FigStt(instance: Integer; figure: Integer; legend: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_FigStt';
function TavixC_FigMdlLin(instance: Integer; x1: Double; y1: Double; x2: Double; y2: Double): Integer;
  cdecl; external TavixLibrary name 'TavixC_FigMdlLin';
function TavixC_FigMdlCir(instance: Integer; x: Double; y: Double; radius: Double): Integer;
  cdecl; external TavixLibrary name 'TavixC_FigMdlCir';
function TavixC_FigMdlPly(instance: Integer; count: Integer; x: PDouble; y: PDouble): Integer;
  cdecl; external TavixLibrary name 'TavixC_FigMdlPly';
function TavixC_FigMdlArc(instance: Integer; startX: Double; startY: Double; endX: Double; endY: Double; radius: Double): Integer;
  cdecl; external TavixLibrary name 'TavixC_FigMdlArc';
function TavixC_FigMdlClo(instance: Integer; startX: Double; startY: Double; endX: Double; endY: Double; startRadius: Double; A: Double; endRadius: Double): Integer;
  cdecl; external TavixLibrary name 'TavixC_FigMdlClo';
function TavixC_FigEnd(instance: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_FigEnd';
function TavixC_DelFig(instance: Integer; figure: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_DelFig';

// ---- Paper frame and scale bar

function TavixC_SetWak(instance: Integer; on: Integer; heightPerInch: Integer; heightUnits: Integer; widthPerInch: Integer; widthUnits: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_SetWak';
function TavixC_WakDsp(instance: Integer; show: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_WakDsp';
function TavixC_SetWakScl(instance: Integer; N: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_SetWakScl';
function TavixC_GetWakScl(instance: Integer; N: PInteger): Integer;
  cdecl; external TavixLibrary name 'TavixC_GetWakScl';
function TavixC_SetWakGen(instance: Integer; X: Double; Y: Double): Integer;
  cdecl; external TavixLibrary name 'TavixC_SetWakGen';
function TavixC_GetWakGen(instance: Integer; X: PDouble; Y: PDouble): Integer;
  cdecl; external TavixLibrary name 'TavixC_GetWakGen';
function TavixC_SclBarDsp(instance: Integer; show: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_SclBarDsp';

// ---- Moving a point

function TavixC_MvPntStt(instance: Integer; legend: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_MvPntStt';
function TavixC_MvPntRub(instance: Integer; X: Double; Y: Double): Integer;
  cdecl; external TavixLibrary name 'TavixC_MvPntRub';
function TavixC_MvPntMov(instance: Integer; X: Double; Y: Double): Integer;
  cdecl; external TavixLibrary name 'TavixC_MvPntMov';
function TavixC_MvPntEnd(instance: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_MvPntEnd';

// ---- Traced polyline

function TavixC_VoStt(instance: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_VoStt';
function TavixC_VoAdd(instance: Integer; X: Double; Y: Double): Integer;
  cdecl; external TavixLibrary name 'TavixC_VoAdd';
function TavixC_VoDel(instance: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_VoDel';
function TavixC_VoGet(instance: Integer; count: PInteger): Integer;
  cdecl; external TavixLibrary name 'TavixC_VoGet';
function TavixC_VoLst(instance: Integer; X: PDouble; Y: PDouble): Integer;
  cdecl; external TavixLibrary name 'TavixC_VoLst';
function TavixC_VoIdx(instance: Integer; index: Integer; X: PDouble; Y: PDouble): Integer;
  cdecl; external TavixLibrary name 'TavixC_VoIdx';
function TavixC_VoEnd(instance: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_VoEnd';

// ---- One-bit picture

function TavixC_GrpStt(instance: Integer; height: Integer; width: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_GrpStt';
function TavixC_GrpGet(instance: Integer; row: Integer; column: Integer; ink: PInteger): Integer;
  cdecl; external TavixLibrary name 'TavixC_GrpGet';
function TavixC_GrpEnd(instance: Integer): Integer;
  cdecl; external TavixLibrary name 'TavixC_GrpEnd';

implementation

end.
