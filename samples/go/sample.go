// A host in Go: a window with a plot that fills it, ten points, two lines and a clothoid, a new
// plot for each new size, and a title that says which point was tapped.
package main

import (
	"fmt"
	"os"
	"runtime"
	"syscall"
	"unsafe"

	"tavix"
)

const (
	plot   = tavix.Plot(0)
	tapped = 100
	solid  = 101
)

var points = []struct {
	name        string
	north, east float64 // metres
}{
	{"基準点1", -35123.456, 12345.678}, {"基準点2", -35098.112, 12391.040},
	{"境1", -35110.250, 12360.500}, {"境2", -35104.900, 12378.250},
	{"境3", -35119.300, 12383.775}, {"境4", -35121.750, 12368.400},
	{"街灯", -35101.300, 12362.900}, {"マンホール", -35113.825, 12372.150},
	{"電柱", -35107.560, 12388.300}, {"水準点", -35125.200, 12379.640},
}

// The few calls of Windows that a window takes.
var (
	user32           = syscall.NewLazyDLL("user32.dll")
	registerClass    = user32.NewProc("RegisterClassW")
	createWindow     = user32.NewProc("CreateWindowExW")
	defWindowProc    = user32.NewProc("DefWindowProcW")
	showWindow       = user32.NewProc("ShowWindow")
	getMessage       = user32.NewProc("GetMessageW")
	translateMessage = user32.NewProc("TranslateMessage")
	dispatchMessage  = user32.NewProc("DispatchMessageW")
	postQuitMessage  = user32.NewProc("PostQuitMessage")
	setWindowText    = user32.NewProc("SetWindowTextW")
	loadCursor       = user32.NewProc("LoadCursorW")
)

const (
	wmDestroy = 0x0002
	wmSize    = 0x0005
	wmCommand = 0x0111

	wsOverlappedWindow = 0x00CF0000
	wsClipChildren     = 0x02000000
	sizeMinimized      = 1
	idcArrow           = 32512
	swShow             = 5
)

type windowClass struct {
	style                         uint32
	procedure                     uintptr
	classExtra, windowExtra       int32
	instance, icon, cursor, brush uintptr
	menuName, className           *uint16
}

type message struct {
	window         uintptr
	message        uint32
	wParam, lParam uintptr
	time           uint32
	x, y           int32
}

func must(err error) {
	if err != nil {
		fmt.Fprintln(os.Stderr, err)
		os.Exit(1)
	}
}

func text(s string) uintptr {
	pointer, _ := syscall.UTF16PtrFromString(s)
	return uintptr(unsafe.Pointer(pointer))
}

func enterSurvey() {
	circles, err := plot.AddPointLegend(2, 1, 0xC00000, 10, 14, false)
	must(err)
	must(plot.SelectPointLegend(circles))
	for i, point := range points { // keys 1 to 10
		must(plot.EnterPoint(i+1, i+1, point.name, point.north, point.east))
	}
	must(plot.SelectLineLegend(solid))
	must(plot.EnterLine(3, 4))
	must(plot.EnterLine(4, 5))
	must(plot.StartFigure(1, solid))
	must(plot.Clothoid(-35122, 12350, -35110, 12369, 0, 30, 40))
	must(plot.EndFigure())
}

var hasView bool

// A plot window keeps its size: another size takes another one.
func showPlot(window uintptr, width, height int) {
	if plot.Link(window, 0, 0, width, height, tapped) != nil {
		return
	}
	must(plot.Draw(hasView))
	must(plot.Show(true))
	hasView = true
}

func sayPoint(window uintptr, key int) {
	_, name, north, east, err := plot.Point(key)
	if err == nil {
		setWindowText.Call(window, text(fmt.Sprintf("%s  X %.3f  Y %.3f", name, north, east)))
	}
}

func procedure(window uintptr, number uint32, wParam, lParam uintptr) uintptr {
	switch number {
	case wmSize:
		if wParam != sizeMinimized {
			showPlot(window, int(lParam&0xFFFF), int(lParam>>16&0xFFFF))
		}
		return 0
	case wmCommand:
		if wParam&0xFFFF == tapped {
			sayPoint(window, int(int32(lParam)))
		}
		return 0
	case wmDestroy:
		plot.Delete()
		postQuitMessage.Call(0)
		return 0
	}
	result, _, _ := defWindowProc.Call(window, uintptr(number), wParam, lParam)
	return result
}

func main() {
	runtime.LockOSThread() // windows and plots belong to one thread
	must(plot.Create())
	enterSurvey()
	cursor, _, _ := loadCursor.Call(0, idcArrow)
	name, _ := syscall.UTF16PtrFromString("TavixSample")
	class := windowClass{procedure: syscall.NewCallback(procedure), cursor: cursor, className: name}
	registerClass.Call(uintptr(unsafe.Pointer(&class)))
	window, _, _ := createWindow.Call(0, text("TavixSample"), text("Tap a point"),
		wsOverlappedWindow|wsClipChildren, 20, 20, 480, 400, 0, 0, 0, 0)
	showWindow.Call(window, swShow)
	var m message
	for {
		more, _, _ := getMessage.Call(uintptr(unsafe.Pointer(&m)), 0, 0, 0)
		if int32(more) <= 0 {
			return
		}
		if tavix.PreTranslate(unsafe.Pointer(&m)) { // the arrow keys
			continue
		}
		translateMessage.Call(uintptr(unsafe.Pointer(&m)))
		dispatchMessage.Call(uintptr(unsafe.Pointer(&m)))
	}
}
