// Package tavix is the plot window for Go programs on 64-bit Windows, without cgo.
//
// A Plot is one of the five instances. Its methods return an *Error where the library refuses; what
// each call does, with units and ranges, stands with the call of the same name in tavix_c.h. All
// calls have to come from one operating-system thread: call runtime.LockOSThread first.
package tavix

import (
	"fmt"
	"syscall"
	"unsafe"
)

// Plot is an instance of the library, 0 to 4.
type Plot int32

// Error is a refusal: the call's code and the reason in words.
type Error struct {
	Code   int32
	Reason string
}

func (e *Error) Error() string { return fmt.Sprintf("%s (%d)", e.Reason, e.Code) }

// check turns a code below 0 into an *Error.
func check(code int32) error {
	if code >= 0 {
		return nil
	}
	return &Error{code, readText(func(text *uint16, capacity int32, length *int32) int32 {
		return cLastError(text, capacity, length)
	})}
}

// readText asks for the length of a text first and reads it then; empty where the call refuses.
func readText(read func(text *uint16, capacity int32, length *int32) int32) string {
	var length int32
	if read(nil, 0, &length) < 0 {
		return ""
	}
	text := make([]uint16, length+1)
	if read(&text[0], length+1, &length) < 0 {
		return ""
	}
	return syscall.UTF16ToString(text)
}

// utf16 is a text as the library takes it; one with a zero inside ends there.
func utf16(text string) *uint16 {
	for i := range text {
		if text[i] == 0 {
			text = text[:i]
			break
		}
	}
	pointer, _ := syscall.UTF16PtrFromString(text)
	return pointer
}

// Version of the library: 10,000 times major, 100 times minor, plus patch.
func Version() int { return int(cVersion()) }

// PreTranslate gives a message (MSG*) to the plot windows; true when it is not to be dispatched.
func PreTranslate(message unsafe.Pointer) bool { return cPreTranslate(uintptr(message)) != 0 }

// Create makes the instance.
func (p Plot) Create() error { return check(cCrt(int32(p))) }

// Delete destroys the instance and its window.
func (p Plot) Delete() error { return check(cDel(int32(p))) }

// Link makes the plot window in a rectangle of the parent window's client area.
func (p Plot) Link(parent uintptr, left, top, right, bottom int, notifyID uint32) error {
	return check(cLnkRct(int32(p), parent, int32(left), int32(top), int32(right), int32(bottom), notifyID))
}

// Window is the plot window's handle, 0 without one.
func (p Plot) Window() uintptr { return cWnd(int32(p)) }

// Show shows or hides the plot window.
func (p Plot) Show(show bool) error { return check(cDsp(int32(p), flag(show))) }

// Draw redraws the window; with keepView false the view is first fitted to the data.
func (p Plot) Draw(keepView bool) error { return check(cDrw(int32(p), flag(keepView))) }

// AddPointLegend adds a point symbol and gives its legend number.
func (p Plot) AddPointLegend(kind, width int, color uint32, size, labelHeight int, showsNumber bool) (int16, error) {
	var number int16
	err := check(cAddPntHan(int32(p), int32(kind), int32(width), int32(color), int32(size),
		int32(labelHeight), flag(showsNumber), &number))
	return number, err
}

// SelectPointLegend chooses the legend of the points entered from now on.
func (p Plot) SelectPointLegend(number int16) error { return check(cSelPntHan(int32(p), number)) }

// SelectLineLegend chooses the legend of the lines entered from now on.
func (p Plot) SelectLineLegend(number int16) error { return check(cSelLinHan(int32(p), number)) }

// EnterPoint enters or replaces the point of a key; north and east in metres.
func (p Plot) EnterPoint(key, number int, name string, north, east float64) error {
	return check(cEntPnt(int32(p), int32(key), int32(number), utf16(name), north, east))
}

// Point reads a point's number, name and coordinates.
func (p Plot) Point(key int) (number int, name string, north, east float64, err error) {
	var n, length int32
	if err = check(cGetPntNoNam(int32(p), int32(key), &n, nil, 0, &length)); err != nil {
		return
	}
	name = readText(func(text *uint16, capacity int32, length *int32) int32 {
		return cGetPntNoNam(int32(p), int32(key), &n, text, capacity, length)
	})
	err = check(cGetPntCrd(int32(p), int32(key), &north, &east))
	return int(n), name, north, east, err
}

// EnterLine joins two points.
func (p Plot) EnterLine(keyA, keyB int) error {
	return check(cEntLin(int32(p), int32(keyA), int32(keyB)))
}

// StartFigure begins a figure with a number and a line legend.
func (p Plot) StartFigure(figure int, legend int16) error {
	return check(cFigStt(int32(p), int32(figure), int32(legend)))
}

// Clothoid adds a clothoid of parameter a between two radii, signed as for arcs, 0 for straight.
func (p Plot) Clothoid(startNorth, startEast, endNorth, endEast, startRadius, a, endRadius float64) error {
	return check(cFigMdlClo(int32(p), startNorth, startEast, endNorth, endEast, startRadius, a, endRadius))
}

// EndFigure ends the figure.
func (p Plot) EndFigure() error { return check(cFigEnd(int32(p))) }

func flag(on bool) int32 {
	if on {
		return 1
	}
	return 0
}
