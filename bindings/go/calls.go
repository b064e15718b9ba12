// Made from tavix.h by bindings/make_bindings.py; changes belong there.
// Units, ranges and codes: tavix_c.h.

package tavix

import (
	"math"
	"syscall"
	"unsafe"
)

const (
	// What the layer itself refuses: the codes of its own.
	NoSuchInstance = -101 // an instance outside 0..4
	WrongThread    = -102 // called on another thread than that of the instances
	NullOutput     = -103 // a null where the call has to write
	Failed         = -104 // no memory, or an exception within the call

	// Pixels that the column of buttons takes from the drawing area, at its right.
	ButtonColumn = 20

	// Lines and memos name their points by 16 bits of a key: the keys that stand for themselves reach
	// from -32768 to this one.
	LargestLineKey = 32767

	// The longest memo that is sure to be kept, in UTF-16 units: what one record of the device's store
	// holds.
	LongestMemo = 32734

	// The projection of the side view. With the plan `height` pixels high, a plan pixel that lies
	// `right` of its left edge and `up` from its bottom edge becomes the pixel
	//
	//     x = SideAcross * (SideUp * up + SideRight * right)
	//     y = height / 2 - SideRise * (SideUp * up - SideRight * right)
	//
	// A height above the height base adds its metres at the plan's scale, straight up.
	SideRight  = 0.9                // of a length to the right
	SideUp     = 0.7                // of a length upward
	SideAcross = 0.8660254037844387 // cos 30 degrees
	SideRise   = 0.5                // sin 30 degrees
)

var library = syscall.NewLazyDLL("tavix_c.dll")

var (
	procVersion      = library.NewProc("TavixC_Version")
	procLastError    = library.NewProc("TavixC_LastError")
	procPreTranslate = library.NewProc("TavixC_PreTranslate")
	procSetIdx       = library.NewProc("TavixC_SetIdx")
	procGetIdx       = library.NewProc("TavixC_GetIdx")
	procCrt          = library.NewProc("TavixC_Crt")
	procDel          = library.NewProc("TavixC_Del")
	procLnk          = library.NewProc("TavixC_Lnk")
	procLnkRct       = library.NewProc("TavixC_LnkRct")
	procWnd          = library.NewProc("TavixC_Wnd")
	procDsp          = library.NewProc("TavixC_Dsp")
	procDsp3D        = library.NewProc("TavixC_Dsp3D")
	procSetBtn       = library.NewProc("TavixC_SetBtn")
	procDrwFlg       = library.NewProc("TavixC_DrwFlg")
	procDrw          = library.NewProc("TavixC_Drw")
	procDrwClr       = library.NewProc("TavixC_DrwClr")
	procSetAng       = library.NewProc("TavixC_SetAng")
	procGetAng       = library.NewProc("TavixC_GetAng")
	procSetTatYok    = library.NewProc("TavixC_SetTatYok")
	procGetTatYok    = library.NewProc("TavixC_GetTatYok")
	procZom          = library.NewProc("TavixC_Zom")
	procZom1         = library.NewProc("TavixC_Zom1")
	procPan          = library.NewProc("TavixC_Pan")
	procMov          = library.NewProc("TavixC_Mov")
	procChkCrd       = library.NewProc("TavixC_ChkCrd")
	procChkCir       = library.NewProc("TavixC_ChkCir")
	procGetLstPicCrd = library.NewProc("TavixC_GetLstPicCrd")
	procCrdStt       = library.NewProc("TavixC_CrdStt")
	procCrdGet       = library.NewProc("TavixC_CrdGet")
	procCrdEnd       = library.NewProc("TavixC_CrdEnd")
	procEntPnt       = library.NewProc("TavixC_EntPnt")
	procChgPntHid    = library.NewProc("TavixC_ChgPntHid")
	procChgPntNoNam  = library.NewProc("TavixC_ChgPntNoNam")
	procChgPntCrd    = library.NewProc("TavixC_ChgPntCrd")
	procGetPntNoNam  = library.NewProc("TavixC_GetPntNoNam")
	procGetPntCrd    = library.NewProc("TavixC_GetPntCrd")
	procDelEntPnt    = library.NewProc("TavixC_DelEntPnt")
	procAddPntHan    = library.NewProc("TavixC_AddPntHan")
	procChgPntHan    = library.NewProc("TavixC_ChgPntHan")
	procGetPntHan    = library.NewProc("TavixC_GetPntHan")
	procSelPntHan    = library.NewProc("TavixC_SelPntHan")
	procPntHanTtl    = library.NewProc("TavixC_PntHanTtl")
	procAddLinHan    = library.NewProc("TavixC_AddLinHan")
	procChgLinHan    = library.NewProc("TavixC_ChgLinHan")
	procGetLinHan    = library.NewProc("TavixC_GetLinHan")
	procSelLinHan    = library.NewProc("TavixC_SelLinHan")
	procEntLin       = library.NewProc("TavixC_EntLin")
	procChgLinHid    = library.NewProc("TavixC_ChgLinHid")
	procDelEntLin    = library.NewProc("TavixC_DelEntLin")
	procClrEntLin    = library.NewProc("TavixC_ClrEntLin")
	procEntPntMem    = library.NewProc("TavixC_EntPntMem")
	procGetPntMem    = library.NewProc("TavixC_GetPntMem")
	procEntPnt3      = library.NewProc("TavixC_EntPnt3")
	procChgPnt3Hid   = library.NewProc("TavixC_ChgPnt3Hid")
	procChgPnt3NoNam = library.NewProc("TavixC_ChgPnt3NoNam")
	procGetPnt3NoNam = library.NewProc("TavixC_GetPnt3NoNam")
	procGetPnt3Crd   = library.NewProc("TavixC_GetPnt3Crd")
	procDelEntPnt3   = library.NewProc("TavixC_DelEntPnt3")
	procFigStt       = library.NewProc("TavixC_FigStt")
	procFigMdlLin    = library.NewProc("TavixC_FigMdlLin")
	procFigMdlCir    = library.NewProc("TavixC_FigMdlCir")
	procFigMdlPly    = library.NewProc("TavixC_FigMdlPly")
	procFigMdlArc    = library.NewProc("TavixC_FigMdlArc")
	procFigMdlClo    = library.NewProc("TavixC_FigMdlClo")
	procFigEnd       = library.NewProc("TavixC_FigEnd")
	procDelFig       = library.NewProc("TavixC_DelFig")
	procSetWak       = library.NewProc("TavixC_SetWak")
	procWakDsp       = library.NewProc("TavixC_WakDsp")
	procSetWakScl    = library.NewProc("TavixC_SetWakScl")
	procGetWakScl    = library.NewProc("TavixC_GetWakScl")
	procSetWakGen    = library.NewProc("TavixC_SetWakGen")
	procGetWakGen    = library.NewProc("TavixC_GetWakGen")
	procSclBarDsp    = library.NewProc("TavixC_SclBarDsp")
	procMvPntStt     = library.NewProc("TavixC_MvPntStt")
	procMvPntRub     = library.NewProc("TavixC_MvPntRub")
	procMvPntMov     = library.NewProc("TavixC_MvPntMov")
	procMvPntEnd     = library.NewProc("TavixC_MvPntEnd")
	procVoStt        = library.NewProc("TavixC_VoStt")
	procVoAdd        = library.NewProc("TavixC_VoAdd")
	procVoDel        = library.NewProc("TavixC_VoDel")
	procVoGet        = library.NewProc("TavixC_VoGet")
	procVoLst        = library.NewProc("TavixC_VoLst")
	procVoIdx        = library.NewProc("TavixC_VoIdx")
	procVoEnd        = library.NewProc("TavixC_VoEnd")
	procGrpStt       = library.NewProc("TavixC_GrpStt")
	procGrpGet       = library.NewProc("TavixC_GrpGet")
	procGrpEnd       = library.NewProc("TavixC_GrpEnd")
)

func cVersion() int32 {
	r, _, _ := procVersion.Call()
	return int32(r)
}

func cLastError(text *uint16, capacity int32, length *int32) int32 {
	r, _, _ := procLastError.Call(uintptr(unsafe.Pointer(text)), uintptr(capacity), uintptr(unsafe.Pointer(length)))
	return int32(r)
}

func cPreTranslate(message uintptr) int32 {
	r, _, _ := procPreTranslate.Call(uintptr(message))
	return int32(r)
}

// Makes instance `index` current for the calls of tavix.dll itself. No call of this layer needs it
// or changes it.
func cSetIdx(index int32) int32 {
	r, _, _ := procSetIdx.Call(uintptr(index))
	return int32(r)
}

// Writes the instance that is current for the calls of tavix.dll itself, 0 to 4.
func cGetIdx(index *int32) int32 {
	r, _, _ := procGetIdx.Call(uintptr(unsafe.Pointer(index)))
	return int32(r)
}

// Creates the instance with empty stores. The legend comes from the file HANREI.DAT in the current
// data folder, or from built-in defaults; a file that another program holds is left alone. When the
// figure files cannot be made or belong to another process, the instance has no figures. Returns -1
// when the instance exists already.
func cCrt(instance int32) int32 {
	r, _, _ := procCrt.Call(uintptr(instance))
	return int32(r)
}

// Destroys the instance, its window included, and saves its legend. A legend whose file could not
// be read is saved only if it has been changed. Always returns 0.
func cDel(instance int32) int32 {
	r, _, _ := procDel.Call(uintptr(instance))
	return int32(r)
}

// Makes the instance's plot window in the place of the control `controlId` of `parent`, which is
// hidden and stays hidden. A window linked before is destroyed. The new window is hidden until
// TavixC_Dsp. `notifyId` is the command id under which the window reports to `parent`. `parent`
// must outlive the window. Returns -1 when the window could not be made, or would have more than
// 2^27 pixels (a back buffer of 512 MiB).
func cLnk(instance int32, parent uintptr, controlId uint32, notifyId uint32) int32 {
	r, _, _ := procLnk.Call(uintptr(instance), uintptr(parent), uintptr(controlId), uintptr(notifyId))
	return int32(r)
}

// The same in a rectangle of `parent`'s client area, in pixels; right and bottom lie outside. One
// that leaves no client area is allowed: the window exists and shows nothing.
//
// TavixC_Del and both link calls may come while the instance's settings dialog is open, from a
// timer of the host for example: the dialog, and a colour chooser above it, end first as if
// cancelled.
func cLnkRct(instance int32, parent uintptr, left int32, top int32, right int32, bottom int32, notifyId uint32) int32 {
	r, _, _ := procLnkRct.Call(uintptr(instance), uintptr(parent), uintptr(left), uintptr(top), uintptr(right), uintptr(bottom), uintptr(notifyId))
	return int32(r)
}

// The instance's plot window, owned by the library, or null when none is linked.
func cWnd(instance int32) uintptr {
	r, _, _ := procWnd.Call(uintptr(instance))
	return uintptr(r)
}

// Shows or hides the plot window. Returns -1 when none is linked.
func cDsp(instance int32, show int32) int32 {
	r, _, _ := procDsp.Call(uintptr(instance), uintptr(show))
	return int32(r)
}

// Switches between the plan (0) and the 3-D side view, and turns the view back to 0 degrees. Does
// not redraw. Needs a linked window. Always returns 0.
func cDsp3D(instance int32, on int32) int32 {
	r, _, _ := procDsp3D.Call(uintptr(instance), uintptr(on))
	return int32(r)
}

// Shows or hides the column of buttons at the window's right edge; the drawing area becomes 20
// pixels narrower or wider and the vertical ratio returns to 1. Without a window the choice is kept
// for the next one. Always returns 0.
func cSetBtn(instance int32, show int32) int32 {
	r, _, _ := procSetBtn.Call(uintptr(instance), uintptr(show))
	return int32(r)
}

// Auto-redraw: while on, entering something new draws it at once and a change redraws the window.
// Off at first. Always returns 0.
func cDrwFlg(instance int32, on int32) int32 {
	r, _, _ := procDrwFlg.Call(uintptr(instance), uintptr(on))
	return int32(r)
}

// Redraws the window; with `keepView` 0 the view is first fitted to the data. As with every redraw
// the window is invalidated, and its next paint shows the picture of this moment. With nothing to
// fit the view stays. The side view is fitted as seen from above: laid flat, its far right may lie
// outside of a narrow window; its height base is then the lowest height, rounded down to a whole
// metre. Needs a linked window (-1 without one); returns 0.
func cDrw(instance int32, keepView int32) int32 {
	r, _, _ := procDrw.Call(uintptr(instance), uintptr(keepView))
	return int32(r)
}

// Empties the instance's data; the legend is kept. Does not redraw. Returns 0, or the code of the
// first store that could not be emptied; the stores after it are then untouched. -1 also when the
// figure files cannot be made or belong to another process; once they are free it gives the
// instance its figures.
func cDrwClr(instance int32) int32 {
	r, _, _ := procDrwClr.Call(uintptr(instance))
	return int32(r)
}

// Turns the view: whole degrees 0..359, positive turns the picture clockwise. Does not redraw.
// Returns -1 for any other angle and changes nothing.
func cSetAng(instance int32, degrees int32) int32 {
	r, _, _ := procSetAng.Call(uintptr(instance), uintptr(degrees))
	return int32(r)
}

// Writes the view's angle in whole degrees, 0..359. Returns 0.
func cGetAng(instance int32, degrees *int32) int32 {
	r, _, _ := procGetAng.Call(uintptr(instance), uintptr(unsafe.Pointer(degrees)))
	return int32(r)
}

// Sets the vertical exaggeration to tate / yoko (vertical / horizontal). Neither is checked: a zero
// yoko makes the view non-finite. Does not redraw or refit. Needs a linked window (-1 without).
func cSetTatYok(instance int32, tate int32, yoko int32) int32 {
	r, _, _ := procSetTatYok.Call(uintptr(instance), uintptr(tate), uintptr(yoko))
	return int32(r)
}

// Writes the ratio's two parts. Returns -1 when none was given since the window was made; the parts
// (1 and 1 at first) are written all the same. Needs a linked window (-1 without, nothing written).
func cGetTatYok(instance int32, tate *int32, yoko *int32) int32 {
	r, _, _ := procGetTatYok.Call(uintptr(instance), uintptr(unsafe.Pointer(tate)), uintptr(unsafe.Pointer(yoko)))
	return int32(r)
}

// Shows a ground box in the whole window, without a margin. (X1, Y1) is the south-west corner:
// sizes are not made positive, and a box that is negative both ways is shown at 1 pixel per metre.
// The view that the zoom-extents button returns to stays. Redraws; returns 0. Needs a linked window
// (-1 without).
func cZom(instance int32, X1 float64, Y1 float64, X2 float64, Y2 float64) int32 {
	r, _, _ := procZom.Call(uintptr(instance), uintptr(math.Float64bits(X1)), uintptr(math.Float64bits(Y1)), uintptr(math.Float64bits(X2)), uintptr(math.Float64bits(Y2)))
	return int32(r)
}

// The same for the square around a circle; radius in metres.
func cZom1(instance int32, X float64, Y float64, radius float64) int32 {
	r, _, _ := procZom1.Call(uintptr(instance), uintptr(math.Float64bits(X)), uintptr(math.Float64bits(Y)), uintptr(math.Float64bits(radius)))
	return int32(r)
}

// Moves the view's centre to (X, Y) at the present scale and redraws. Returns 0; needs a linked
// window (-1 without).
func cPan(instance int32, X float64, Y float64) int32 {
	r, _, _ := procPan.Call(uintptr(instance), uintptr(math.Float64bits(X)), uintptr(math.Float64bits(Y)))
	return int32(r)
}

// Does nothing and returns 0; kept for hosts that call it.
func cMov(instance int32) int32 {
	r, _, _ := procMov.Call(uintptr(instance))
	return int32(r)
}

// Writes 1 when the pixel of (X, Y) lies in the drawing area, borders included, else 0. Returns 0.
func cChkCrd(instance int32, X float64, Y float64, visible *int32) int32 {
	r, _, _ := procChkCrd.Call(uintptr(instance), uintptr(math.Float64bits(X)), uintptr(math.Float64bits(Y)), uintptr(unsafe.Pointer(visible)))
	return int32(r)
}

// Writes 1 when four points of a circle, one to each side, lie in the drawing area, else 0; a
// radius below 0.00001 m asks for the centre alone. Compatibility: in a turned view the four are
// turned twice. Returns 0.
func cChkCir(instance int32, X float64, Y float64, radius float64, visible *int32) int32 {
	r, _, _ := procChkCir.Call(uintptr(instance), uintptr(math.Float64bits(X)), uintptr(math.Float64bits(Y)), uintptr(math.Float64bits(radius)), uintptr(unsafe.Pointer(visible)))
	return int32(r)
}

// Writes the client pixel where the stylus last left the window, and returns its y.
func cGetLstPicCrd(instance int32, x *int32, y *int32) int32 {
	r, _, _ := procGetLstPicCrd.Call(uintptr(instance), uintptr(unsafe.Pointer(x)), uintptr(unsafe.Pointer(y)))
	return int32(r)
}

// Starts coordinate capture under this command id, and forgets a coordinate captured before.
func cCrdStt(instance int32, command int32) int32 {
	r, _, _ := procCrdStt.Call(uintptr(instance), uintptr(command))
	return int32(r)
}

// Writes the coordinate that the latest tap has captured: that of the point it hit, else that of
// the ground. Returns -1 when there is none.
func cCrdGet(instance int32, X *float64, Y *float64) int32 {
	r, _, _ := procCrdGet.Call(uintptr(instance), uintptr(unsafe.Pointer(X)), uintptr(unsafe.Pointer(Y)))
	return int32(r)
}

// Ends coordinate capture and forgets the coordinate. Returns 0.
func cCrdEnd(instance int32) int32 {
	r, _, _ := procCrdEnd.Call(uintptr(instance))
	return int32(r)
}

// Enters a point with the selected point legend, or replaces everything but the key of the point
// that has this key. With auto-redraw on a new point is drawn at once; an old one redraws the
// window unless nothing changed (coordinates within 1e-5 m).
func cEntPnt(instance int32, key int32, number int32, name *uint16, x float64, y float64) int32 {
	r, _, _ := procEntPnt.Call(uintptr(instance), uintptr(key), uintptr(number), uintptr(unsafe.Pointer(name)), uintptr(math.Float64bits(x)), uintptr(math.Float64bits(y)))
	return int32(r)
}

// Changes a point's legend number. Returns -1 for an unknown key.
func cChgPntHid(instance int32, key int32, legend int16) int32 {
	r, _, _ := procChgPntHid.Call(uintptr(instance), uintptr(key), uintptr(legend))
	return int32(r)
}

// Changes a point's number and name. Returns -1 for an unknown key.
func cChgPntNoNam(instance int32, key int32, number int32, name *uint16) int32 {
	r, _, _ := procChgPntNoNam.Call(uintptr(instance), uintptr(key), uintptr(number), uintptr(unsafe.Pointer(name)))
	return int32(r)
}

// Changes a point's coordinates. Returns -1 for an unknown key.
func cChgPntCrd(instance int32, key int32, x float64, y float64) int32 {
	r, _, _ := procChgPntCrd.Call(uintptr(instance), uintptr(key), uintptr(math.Float64bits(x)), uintptr(math.Float64bits(y)))
	return int32(r)
}

// Writes a point's number and name. Returns -1 for an unknown key.
func cGetPntNoNam(instance int32, key int32, number *int32, name *uint16, capacity int32, length *int32) int32 {
	r, _, _ := procGetPntNoNam.Call(uintptr(instance), uintptr(key), uintptr(unsafe.Pointer(number)), uintptr(unsafe.Pointer(name)), uintptr(capacity), uintptr(unsafe.Pointer(length)))
	return int32(r)
}

// Writes a point's coordinates. Returns -1 for an unknown key.
func cGetPntCrd(instance int32, key int32, x *float64, y *float64) int32 {
	r, _, _ := procGetPntCrd.Call(uintptr(instance), uintptr(key), uintptr(unsafe.Pointer(x)), uintptr(unsafe.Pointer(y)))
	return int32(r)
}

// Removes a point and its memo. Never redraws. Returns -1 for an unknown key; a memo kept under it
// is removed all the same.
func cDelEntPnt(instance int32, key int32) int32 {
	r, _, _ := procDelEntPnt.Call(uintptr(instance), uintptr(key))
	return int32(r)
}

// Adds a point legend and writes its number, from 201 up. Such entries are not saved. Returns 0.
func cAddPntHan(instance int32, kind int32, width int32, color int32, prm1 int32, prm2 int32, prm3 int32, number *int16) int32 {
	r, _, _ := procAddPntHan.Call(uintptr(instance), uintptr(kind), uintptr(width), uintptr(color), uintptr(prm1), uintptr(prm2), uintptr(prm3), uintptr(unsafe.Pointer(number)))
	return int32(r)
}

// Changes legend entry `number` and makes it a point legend. Returns -1 for an unknown number.
func cChgPntHan(instance int32, number int16, kind int32, width int32, color int32, prm1 int32, prm2 int32, prm3 int32) int32 {
	r, _, _ := procChgPntHan.Call(uintptr(instance), uintptr(number), uintptr(kind), uintptr(width), uintptr(color), uintptr(prm1), uintptr(prm2), uintptr(prm3))
	return int32(r)
}

// Reads legend entry `number`. Returns -1 for an unknown number.
func cGetPntHan(instance int32, number int16, kind *int32, width *int32, color *int32, prm1 *int32, prm2 *int32, prm3 *int32) int32 {
	r, _, _ := procGetPntHan.Call(uintptr(instance), uintptr(number), uintptr(unsafe.Pointer(kind)), uintptr(unsafe.Pointer(width)), uintptr(unsafe.Pointer(color)), uintptr(unsafe.Pointer(prm1)), uintptr(unsafe.Pointer(prm2)), uintptr(unsafe.Pointer(prm3)))
	return int32(r)
}

// Selects the legend that points entered from now on receive; it need not exist. -1 at first.
func cSelPntHan(instance int32, number int16) int32 {
	r, _, _ := procSelPntHan.Call(uintptr(instance), uintptr(number))
	return int32(r)
}

// Sets the title of built-in point legend 1..11, shown in the settings dialog and never saved.
// Returns -1 for any other number.
func cPntHanTtl(instance int32, number int16, title *uint16) int32 {
	r, _, _ := procPntHanTtl.Call(uintptr(instance), uintptr(number), uintptr(unsafe.Pointer(title)))
	return int32(r)
}

// Adds a line legend and writes its number, from 201 up. Such entries are not saved. Returns 0.
func cAddLinHan(instance int32, kind int32, prm1 int16, prm2 int16, prm3 int16, width int32, color int32, number *int16) int32 {
	r, _, _ := procAddLinHan.Call(uintptr(instance), uintptr(kind), uintptr(prm1), uintptr(prm2), uintptr(prm3), uintptr(width), uintptr(color), uintptr(unsafe.Pointer(number)))
	return int32(r)
}

// Changes legend entry `number` and makes it a line legend. Returns -1 for an unknown number.
func cChgLinHan(instance int32, number int16, kind int32, prm1 int16, prm2 int16, prm3 int16, width int32, color int32) int32 {
	r, _, _ := procChgLinHan.Call(uintptr(instance), uintptr(number), uintptr(kind), uintptr(prm1), uintptr(prm2), uintptr(prm3), uintptr(width), uintptr(color))
	return int32(r)
}

// Reads legend entry `number`, its parameters cut to 16 bits. Returns -1 for an unknown number.
func cGetLinHan(instance int32, number int16, kind *int32, prm1 *int16, prm2 *int16, prm3 *int16, width *int32, color *int32) int32 {
	r, _, _ := procGetLinHan.Call(uintptr(instance), uintptr(number), uintptr(unsafe.Pointer(kind)), uintptr(unsafe.Pointer(prm1)), uintptr(unsafe.Pointer(prm2)), uintptr(unsafe.Pointer(prm3)), uintptr(unsafe.Pointer(width)), uintptr(unsafe.Pointer(color)))
	return int32(r)
}

// Selects the legend that lines entered from now on receive; it need not exist. -1 at first.
func cSelLinHan(instance int32, number int16) int32 {
	r, _, _ := procSelLinHan.Call(uintptr(instance), uintptr(number))
	return int32(r)
}

// Enters a line with the selected line legend. One that is there, in either direction, stays as it
// is: 0. Returns -1 when it could not be added. With auto-redraw on the line is drawn at once.
func cEntLin(instance int32, keyA int32, keyB int32) int32 {
	r, _, _ := procEntLin.Call(uintptr(instance), uintptr(keyA), uintptr(keyB))
	return int32(r)
}

// Changes a line's legend number. Returns 0, a code as above (when writing: -1 failed, -3
// unreadable, -4 no legend), or with auto-redraw on the redraw's result.
func cChgLinHid(instance int32, keyA int32, keyB int32, legend int16) int32 {
	r, _, _ := procChgLinHid.Call(uintptr(instance), uintptr(keyA), uintptr(keyB), uintptr(legend))
	return int32(r)
}

// Removes a line. Never redraws.
func cDelEntLin(instance int32, keyA int32, keyB int32) int32 {
	r, _, _ := procDelEntLin.Call(uintptr(instance), uintptr(keyA), uintptr(keyB))
	return int32(r)
}

// Removes all lines. Never redraws. Returns 0 when the database is open afterwards, else -1. One
// that could not be deleted is opened again with its lines: 0.
func cClrEntLin(instance int32) int32 {
	r, _, _ := procClrEntLin.Call(uintptr(instance))
	return int32(r)
}

// Keeps a text for a point key (16 bits of it, as lines do); the point need not exist. An empty
// text removes the memo of a key that has one, and is kept as an empty memo for a key that has
// none. A memo longer than LongestMemo may be refused. Returns 0, -1 it could not be added or
// written, as when the memo database cannot be opened, -3 it could not be read or deleted.
func cEntPntMem(instance int32, key int32, memo *uint16) int32 {
	r, _, _ := procEntPntMem.Call(uintptr(instance), uintptr(key), uintptr(unsafe.Pointer(memo)))
	return int32(r)
}

// Writes the memo of a key; an empty one when there is none or it cannot be read. Returns 0.
func cGetPntMem(instance int32, key int32, memo *uint16, capacity int32, length *int32) int32 {
	r, _, _ := procGetPntMem.Call(uintptr(instance), uintptr(key), uintptr(unsafe.Pointer(memo)), uintptr(capacity), uintptr(unsafe.Pointer(length)))
	return int32(r)
}

// Enters a point with the selected point legend, or replaces everything but the key of the one that
// has it. Returns 0.
func cEntPnt3(instance int32, key int32, number int32, name *uint16, x float64, y float64, z float64) int32 {
	r, _, _ := procEntPnt3.Call(uintptr(instance), uintptr(key), uintptr(number), uintptr(unsafe.Pointer(name)), uintptr(math.Float64bits(x)), uintptr(math.Float64bits(y)), uintptr(math.Float64bits(z)))
	return int32(r)
}

// Changes a point's legend number. Returns -1 for an unknown key; so do the calls below.
func cChgPnt3Hid(instance int32, key int32, legend int16) int32 {
	r, _, _ := procChgPnt3Hid.Call(uintptr(instance), uintptr(key), uintptr(legend))
	return int32(r)
}

// Changes a point's number and name.
func cChgPnt3NoNam(instance int32, key int32, number int32, name *uint16) int32 {
	r, _, _ := procChgPnt3NoNam.Call(uintptr(instance), uintptr(key), uintptr(number), uintptr(unsafe.Pointer(name)))
	return int32(r)
}

// Writes a point's number and name.
func cGetPnt3NoNam(instance int32, key int32, number *int32, name *uint16, capacity int32, length *int32) int32 {
	r, _, _ := procGetPnt3NoNam.Call(uintptr(instance), uintptr(key), uintptr(unsafe.Pointer(number)), uintptr(unsafe.Pointer(name)), uintptr(capacity), uintptr(unsafe.Pointer(length)))
	return int32(r)
}

// Writes a point's coordinates and height.
func cGetPnt3Crd(instance int32, key int32, x *float64, y *float64, z *float64) int32 {
	r, _, _ := procGetPnt3Crd.Call(uintptr(instance), uintptr(key), uintptr(unsafe.Pointer(x)), uintptr(unsafe.Pointer(y)), uintptr(unsafe.Pointer(z)))
	return int32(r)
}

// Removes a point; a memo of its key stays.
func cDelEntPnt3(instance int32, key int32) int32 {
	r, _, _ := procDelEntPnt3.Call(uintptr(instance), uintptr(key))
	return int32(r)
}

// Starts a figure: its number and line legend. Returns 0.
func cFigStt(instance int32, figure int32, legend int32) int32 {
	r, _, _ := procFigStt.Call(uintptr(instance), uintptr(figure), uintptr(legend))
	return int32(r)
}

// A straight line. Returns 0.
func cFigMdlLin(instance int32, x1 float64, y1 float64, x2 float64, y2 float64) int32 {
	r, _, _ := procFigMdlLin.Call(uintptr(instance), uintptr(math.Float64bits(x1)), uintptr(math.Float64bits(y1)), uintptr(math.Float64bits(x2)), uintptr(math.Float64bits(y2)))
	return int32(r)
}

// A circle; radius in metres. It is drawn as a solid line, whatever the kind of its legend. Returns
// 0.
func cFigMdlCir(instance int32, x float64, y float64, radius float64) int32 {
	r, _, _ := procFigMdlCir.Call(uintptr(instance), uintptr(math.Float64bits(x)), uintptr(math.Float64bits(y)), uintptr(math.Float64bits(radius)))
	return int32(r)
}

// A polyline of `count` vertices; one without vertices is kept and draws nothing. Returns 0, or -1
// for a null array when `count` is above 0.
func cFigMdlPly(instance int32, count int32, x *float64, y *float64) int32 {
	r, _, _ := procFigMdlPly.Call(uintptr(instance), uintptr(count), uintptr(unsafe.Pointer(x)), uintptr(unsafe.Pointer(y)))
	return int32(r)
}

// The shorter arc of a radius in metres. A positive radius turns from x (north) toward y (east),
// that is clockwise on the map, a negative one the other way. Returns -1 when there is no such arc.
func cFigMdlArc(instance int32, startX float64, startY float64, endX float64, endY float64, radius float64) int32 {
	r, _, _ := procFigMdlArc.Call(uintptr(instance), uintptr(math.Float64bits(startX)), uintptr(math.Float64bits(startY)), uintptr(math.Float64bits(endX)), uintptr(math.Float64bits(endY)), uintptr(math.Float64bits(radius)))
	return int32(r)
}

// A clothoid of parameter A between two radii, signed as for arcs, 0 for a straight end. Between
// two radii the second must be the smaller, otherwise a straight line is drawn. Returns -1 when a
// number is not finite, or when the curve would have more than ten million points (one for each
// degree of its tangent).
func cFigMdlClo(instance int32, startX float64, startY float64, endX float64, endY float64, startRadius float64, A float64, endRadius float64) int32 {
	r, _, _ := procFigMdlClo.Call(uintptr(instance), uintptr(math.Float64bits(startX)), uintptr(math.Float64bits(startY)), uintptr(math.Float64bits(endX)), uintptr(math.Float64bits(endY)), uintptr(math.Float64bits(startRadius)), uintptr(math.Float64bits(A)), uintptr(math.Float64bits(endRadius)))
	return int32(r)
}

// Ends a figure; with auto-redraw on the window is redrawn. Returns 0.
func cFigEnd(instance int32) int32 {
	r, _, _ := procFigEnd.Call(uintptr(instance))
	return int32(r)
}

// Deletes every piece of a figure number, and redraws as TavixC_FigEnd. Returns 0 also for a number
// without pieces, -1 when there are no figures at all.
func cDelFig(instance int32, figure int32) int32 {
	r, _, _ := procDelFig.Call(uintptr(instance), uintptr(figure))
	return int32(r)
}

// Turns the frame off (0), or on with a sheet of `heightUnits` units of which `heightPerInch` make
// an inch, and the same for its width. Nothing is checked. Returns 0.
func cSetWak(instance int32, on int32, heightPerInch int32, heightUnits int32, widthPerInch int32, widthUnits int32) int32 {
	r, _, _ := procSetWak.Call(uintptr(instance), uintptr(on), uintptr(heightPerInch), uintptr(heightUnits), uintptr(widthPerInch), uintptr(widthUnits))
	return int32(r)
}

// Shows or hides the outline, from the next paint on. Returns 0.
func cWakDsp(instance int32, show int32) int32 {
	r, _, _ := procWakDsp.Call(uintptr(instance), uintptr(show))
	return int32(r)
}

// Gives the view the scale 1:N on the sheet, keeping the frame's origin. Returns -1 for N below 1.
func cSetWakScl(instance int32, N int32) int32 {
	r, _, _ := procSetWakScl.Call(uintptr(instance), uintptr(N))
	return int32(r)
}

// Writes N, truncated: after TavixC_SetWakScl(N) it may be N - 1, for the view keeps 1/N. The value
// stays the same until the view is zoomed. Compatibility: TavixC_Zom and TavixC_Zom1 do not change
// it.
func cGetWakScl(instance int32, N *int32) int32 {
	r, _, _ := procGetWakScl.Call(uintptr(instance), uintptr(unsafe.Pointer(N)))
	return int32(r)
}

// Moves the view so that the frame's bottom left corner lies on (X, Y), starting from the corner
// that the last redraw found. It may miss by up to a pixel, as the middle of a frame of whole
// pixels is not quite that of the view: after a redraw TavixC_GetWakGen gives the corner as it is,
// and a second call, corrected by the difference, puts it right.
func cSetWakGen(instance int32, X float64, Y float64) int32 {
	r, _, _ := procSetWakGen.Call(uintptr(instance), uintptr(math.Float64bits(X)), uintptr(math.Float64bits(Y)))
	return int32(r)
}

// Writes the ground under the frame's bottom left corner; zeros while the frame is off.
func cGetWakGen(instance int32, X *float64, Y *float64) int32 {
	r, _, _ := procGetWakGen.Call(uintptr(instance), uintptr(unsafe.Pointer(X)), uintptr(unsafe.Pointer(Y)))
	return int32(r)
}

// Shows or hides the scale bar, from the next paint on. Returns 0.
func cSclBarDsp(instance int32, show int32) int32 {
	r, _, _ := procSclBarDsp.Call(uintptr(instance), uintptr(show))
	return int32(r)
}

// Takes the symbol of a point legend; nothing is drawn. Returns -1 for an unknown legend, -2 for
// one that is not a point legend; the state is then as it was.
func cMvPntStt(instance int32, legend int32) int32 {
	r, _, _ := procMvPntStt.Call(uintptr(instance), uintptr(legend))
	return int32(r)
}

// From the next move on a line runs from (X, Y) to the mark. To be called before the first move.
// Returns 0.
func cMvPntRub(instance int32, X float64, Y float64) int32 {
	r, _, _ := procMvPntRub.Call(uintptr(instance), uintptr(math.Float64bits(X)), uintptr(math.Float64bits(Y)))
	return int32(r)
}

// Moves the mark. Without a start it is a circle of 10 pixels, black on white. Returns 0.
func cMvPntMov(instance int32, X float64, Y float64) int32 {
	r, _, _ := procMvPntMov.Call(uintptr(instance), uintptr(math.Float64bits(X)), uintptr(math.Float64bits(Y)))
	return int32(r)
}

// Takes the mark and the line off. Returns 0.
func cMvPntEnd(instance int32) int32 {
	r, _, _ := procMvPntEnd.Call(uintptr(instance))
	return int32(r)
}

// Starts a trace; one that was under way is taken off. Returns 0.
func cVoStt(instance int32) int32 {
	r, _, _ := procVoStt.Call(uintptr(instance))
	return int32(r)
}

// Appends a vertex and draws the segment to it. Returns 0.
func cVoAdd(instance int32, X float64, Y float64) int32 {
	r, _, _ := procVoAdd.Call(uintptr(instance), uintptr(math.Float64bits(X)), uintptr(math.Float64bits(Y)))
	return int32(r)
}

// Takes the last vertex back. Returns -1 when there is none.
func cVoDel(instance int32) int32 {
	r, _, _ := procVoDel.Call(uintptr(instance))
	return int32(r)
}

// Writes the number of vertices. Returns 0.
func cVoGet(instance int32, count *int32) int32 {
	r, _, _ := procVoGet.Call(uintptr(instance), uintptr(unsafe.Pointer(count)))
	return int32(r)
}

// Writes every vertex in order into two arrays of at least that many places, which may be null when
// there are none. Returns 0.
func cVoLst(instance int32, X *float64, Y *float64) int32 {
	r, _, _ := procVoLst.Call(uintptr(instance), uintptr(unsafe.Pointer(X)), uintptr(unsafe.Pointer(Y)))
	return int32(r)
}

// Writes one vertex, counted from 0. Returns -1 for an index outside the polyline.
func cVoIdx(instance int32, index int32, X *float64, Y *float64) int32 {
	r, _, _ := procVoIdx.Call(uintptr(instance), uintptr(index), uintptr(unsafe.Pointer(X)), uintptr(unsafe.Pointer(Y)))
	return int32(r)
}

// Takes the polyline off and forgets it. Returns 0.
func cVoEnd(instance int32) int32 {
	r, _, _ := procVoEnd.Call(uintptr(instance))
	return int32(r)
}

// Draws the plan into a picture of this size, with a north arrow in a free corner; one held before
// is freed. The picture shows the window's ground width, or one sheet while the paper frame is on.
// Needs a linked window. Returns -1 without one, and for a picture of more than 256 MiB (some
// 46,000 pixels square), with the one held before freed; else 0.
func cGrpStt(instance int32, height int32, width int32) int32 {
	r, _, _ := procGrpStt.Call(uintptr(instance), uintptr(height), uintptr(width))
	return int32(r)
}

// Writes 1 when the pixel is ink, else 0; rows count from the top. While the paper frame's outline
// shows, the two outermost rows and columns are ink, and so is any row above the picture and any
// column left of it. Everything else outside of the picture, and everything without a picture, is
// no ink; a column at or beyond the width never is. Returns 0; needs a linked window (-1 without).
func cGrpGet(instance int32, row int32, column int32, ink *int32) int32 {
	r, _, _ := procGrpGet.Call(uintptr(instance), uintptr(row), uintptr(column), uintptr(unsafe.Pointer(ink)))
	return int32(r)
}

// Frees the picture. Returns 0; needs a linked window (-1 without).
func cGrpEnd(instance int32) int32 {
	r, _, _ := procGrpEnd.Call(uintptr(instance))
	return int32(r)
}
