"""The calls of tavix_c.dll for ctypes, one to one.

Made from tavix.h by bindings/make_bindings.py; changes belong there.
Units, ranges and codes: tavix_c.h.
"""

from ctypes import POINTER, c_double, c_int, c_short, c_uint, c_void_p, c_wchar_p

# What the layer itself refuses: the codes of its own.
NO_SUCH_INSTANCE = -101  # an instance outside 0..4
WRONG_THREAD = -102      # called on another thread than that of the instances
NULL_OUTPUT = -103       # a null where the call has to write
FAILED = -104            # no memory, or an exception within the call

# Pixels that the column of buttons takes from the drawing area, at its right.
BUTTON_COLUMN = 20

# Lines and memos name their points by 16 bits of a key: the keys that stand for themselves reach
# from -32768 to this one.
LARGEST_LINE_KEY = 32767

# The longest memo that is sure to be kept, in UTF-16 units: what one record of the device's store
# holds.
LONGEST_MEMO = 32734

# The projection of the side view. With the plan `height` pixels high, a plan pixel that lies
# `right` of its left edge and `up` from its bottom edge becomes the pixel
#
#     x = SIDE_ACROSS * (SIDE_UP * up + SIDE_RIGHT * right)
#     y = height / 2 - SIDE_RISE * (SIDE_UP * up - SIDE_RIGHT * right)
#
# A height above the height base adds its metres at the plan's scale, straight up.
SIDE_RIGHT = 0.9                  # of a length to the right
SIDE_UP = 0.7                     # of a length upward
SIDE_ACROSS = 0.8660254037844387  # cos 30 degrees
SIDE_RISE = 0.5                   # sin 30 degrees

# Name, result, arguments.
CALLS = [
    # The layer
    ("TavixC_Version", c_int, (),
     ""),
    ("TavixC_LastError", c_int, (c_wchar_p, c_int, POINTER(c_int)),
     "text capacity length"),
    ("TavixC_PreTranslate", c_int, (c_void_p,),
     "message"),
    # Instances and their windows
    ("TavixC_SetIdx", c_int, (c_int,),
     "index"),
    ("TavixC_GetIdx", c_int, (POINTER(c_int),),
     "index"),
    ("TavixC_Crt", c_int, (c_int,),
     "instance"),
    ("TavixC_Del", c_int, (c_int,),
     "instance"),
    ("TavixC_Lnk", c_int, (c_int, c_void_p, c_uint, c_uint),
     "instance parent controlId notifyId"),
    ("TavixC_LnkRct", c_int, (c_int, c_void_p, c_int, c_int, c_int, c_int, c_uint),
     "instance parent left top right bottom notifyId"),
    ("TavixC_Wnd", c_void_p, (c_int,),
     "instance"),
    ("TavixC_Dsp", c_int, (c_int, c_int),
     "instance show"),
    ("TavixC_Dsp3D", c_int, (c_int, c_int),
     "instance on"),
    ("TavixC_SetBtn", c_int, (c_int, c_int),
     "instance show"),
    ("TavixC_DrwFlg", c_int, (c_int, c_int),
     "instance on"),
    ("TavixC_Drw", c_int, (c_int, c_int),
     "instance keepView"),
    ("TavixC_DrwClr", c_int, (c_int,),
     "instance"),
    # View
    ("TavixC_SetAng", c_int, (c_int, c_int),
     "instance degrees"),
    ("TavixC_GetAng", c_int, (c_int, POINTER(c_int)),
     "instance degrees"),
    ("TavixC_SetTatYok", c_int, (c_int, c_int, c_int),
     "instance tate yoko"),
    ("TavixC_GetTatYok", c_int, (c_int, POINTER(c_int), POINTER(c_int)),
     "instance tate yoko"),
    ("TavixC_Zom", c_int, (c_int, c_double, c_double, c_double, c_double),
     "instance X1 Y1 X2 Y2"),
    ("TavixC_Zom1", c_int, (c_int, c_double, c_double, c_double),
     "instance X Y radius"),
    ("TavixC_Pan", c_int, (c_int, c_double, c_double),
     "instance X Y"),
    ("TavixC_Mov", c_int, (c_int,),
     "instance"),
    # Picking
    ("TavixC_ChkCrd", c_int, (c_int, c_double, c_double, POINTER(c_int)),
     "instance X Y visible"),
    ("TavixC_ChkCir", c_int, (c_int, c_double, c_double, c_double, POINTER(c_int)),
     "instance X Y radius visible"),
    ("TavixC_GetLstPicCrd", c_int, (c_int, POINTER(c_int), POINTER(c_int)),
     "instance x y"),
    ("TavixC_CrdStt", c_int, (c_int, c_int),
     "instance command"),
    ("TavixC_CrdGet", c_int, (c_int, POINTER(c_double), POINTER(c_double)),
     "instance X Y"),
    ("TavixC_CrdEnd", c_int, (c_int,),
     "instance"),
    # Points
    ("TavixC_EntPnt", c_int, (c_int, c_int, c_int, c_wchar_p, c_double, c_double),
     "instance key number name x y"),
    ("TavixC_ChgPntHid", c_int, (c_int, c_int, c_short),
     "instance key legend"),
    ("TavixC_ChgPntNoNam", c_int, (c_int, c_int, c_int, c_wchar_p),
     "instance key number name"),
    ("TavixC_ChgPntCrd", c_int, (c_int, c_int, c_double, c_double),
     "instance key x y"),
    ("TavixC_GetPntNoNam", c_int, (c_int, c_int, POINTER(c_int), c_wchar_p, c_int, POINTER(c_int)),
     "instance key number name capacity length"),
    ("TavixC_GetPntCrd", c_int, (c_int, c_int, POINTER(c_double), POINTER(c_double)),
     "instance key x y"),
    ("TavixC_DelEntPnt", c_int, (c_int, c_int),
     "instance key"),
    # Legend
    ("TavixC_AddPntHan", c_int, (c_int, c_int, c_int, c_int, c_int, c_int, c_int, POINTER(c_short)),
     "instance kind width color prm1 prm2 prm3 number"),
    ("TavixC_ChgPntHan", c_int, (c_int, c_short, c_int, c_int, c_int, c_int, c_int, c_int),
     "instance number kind width color prm1 prm2 prm3"),
    ("TavixC_GetPntHan", c_int, (c_int, c_short, POINTER(c_int), POINTER(c_int), POINTER(c_int), POINTER(c_int), POINTER(c_int), POINTER(c_int)),
     "instance number kind width color prm1 prm2 prm3"),
    ("TavixC_SelPntHan", c_int, (c_int, c_short),
     "instance number"),
    ("TavixC_PntHanTtl", c_int, (c_int, c_short, c_wchar_p),
     "instance number title"),
    ("TavixC_AddLinHan", c_int, (c_int, c_int, c_short, c_short, c_short, c_int, c_int, POINTER(c_short)),
     "instance kind prm1 prm2 prm3 width color number"),
    ("TavixC_ChgLinHan", c_int, (c_int, c_short, c_int, c_short, c_short, c_short, c_int, c_int),
     "instance number kind prm1 prm2 prm3 width color"),
    ("TavixC_GetLinHan", c_int, (c_int, c_short, POINTER(c_int), POINTER(c_short), POINTER(c_short), POINTER(c_short), POINTER(c_int), POINTER(c_int)),
     "instance number kind prm1 prm2 prm3 width color"),
    ("TavixC_SelLinHan", c_int, (c_int, c_short),
     "instance number"),
    # Lines
    ("TavixC_EntLin", c_int, (c_int, c_int, c_int),
     "instance keyA keyB"),
    ("TavixC_ChgLinHid", c_int, (c_int, c_int, c_int, c_short),
     "instance keyA keyB legend"),
    ("TavixC_DelEntLin", c_int, (c_int, c_int, c_int),
     "instance keyA keyB"),
    ("TavixC_ClrEntLin", c_int, (c_int,),
     "instance"),
    # Memos
    ("TavixC_EntPntMem", c_int, (c_int, c_int, c_wchar_p),
     "instance key memo"),
    ("TavixC_GetPntMem", c_int, (c_int, c_int, c_wchar_p, c_int, POINTER(c_int)),
     "instance key memo capacity length"),
    # 3-D points
    ("TavixC_EntPnt3", c_int, (c_int, c_int, c_int, c_wchar_p, c_double, c_double, c_double),
     "instance key number name x y z"),
    ("TavixC_ChgPnt3Hid", c_int, (c_int, c_int, c_short),
     "instance key legend"),
    ("TavixC_ChgPnt3NoNam", c_int, (c_int, c_int, c_int, c_wchar_p),
     "instance key number name"),
    ("TavixC_GetPnt3NoNam", c_int, (c_int, c_int, POINTER(c_int), c_wchar_p, c_int, POINTER(c_int)),
     "instance key number name capacity length"),
    ("TavixC_GetPnt3Crd", c_int, (c_int, c_int, POINTER(c_double), POINTER(c_double), POINTER(c_double)),
     "instance key x y z"),
    ("TavixC_DelEntPnt3", c_int, (c_int, c_int),
     "instance key"),
    # Figures
    ("TavixC_FigStt", c_int, (c_int, c_int, c_int),
     "instance figure legend"),
    ("TavixC_FigMdlLin", c_int, (c_int, c_double, c_double, c_double, c_double),
     "instance x1 y1 x2 y2"),
    ("TavixC_FigMdlCir", c_int, (c_int, c_double, c_double, c_double),
     "instance x y radius"),
    ("TavixC_FigMdlPly", c_int, (c_int, c_int, POINTER(c_double), POINTER(c_double)),
     "instance count x y"),
    ("TavixC_FigMdlArc", c_int, (c_int, c_double, c_double, c_double, c_double, c_double),
     "instance startX startY endX endY radius"),
    ("TavixC_FigMdlClo", c_int, (c_int, c_double, c_double, c_double, c_double, c_double, c_double, c_double),
     "instance startX startY endX endY startRadius A endRadius"),
    ("TavixC_FigEnd", c_int, (c_int,),
     "instance"),
    ("TavixC_DelFig", c_int, (c_int, c_int),
     "instance figure"),
    # Paper frame and scale bar
    ("TavixC_SetWak", c_int, (c_int, c_int, c_int, c_int, c_int, c_int),
     "instance on heightPerInch heightUnits widthPerInch widthUnits"),
    ("TavixC_WakDsp", c_int, (c_int, c_int),
     "instance show"),
    ("TavixC_SetWakScl", c_int, (c_int, c_int),
     "instance N"),
    ("TavixC_GetWakScl", c_int, (c_int, POINTER(c_int)),
     "instance N"),
    ("TavixC_SetWakGen", c_int, (c_int, c_double, c_double),
     "instance X Y"),
    ("TavixC_GetWakGen", c_int, (c_int, POINTER(c_double), POINTER(c_double)),
     "instance X Y"),
    ("TavixC_SclBarDsp", c_int, (c_int, c_int),
     "instance show"),
    # Moving a point
    ("TavixC_MvPntStt", c_int, (c_int, c_int),
     "instance legend"),
    ("TavixC_MvPntRub", c_int, (c_int, c_double, c_double),
     "instance X Y"),
    ("TavixC_MvPntMov", c_int, (c_int, c_double, c_double),
     "instance X Y"),
    ("TavixC_MvPntEnd", c_int, (c_int,),
     "instance"),
    # Traced polyline
    ("TavixC_VoStt", c_int, (c_int,),
     "instance"),
    ("TavixC_VoAdd", c_int, (c_int, c_double, c_double),
     "instance X Y"),
    ("TavixC_VoDel", c_int, (c_int,),
     "instance"),
    ("TavixC_VoGet", c_int, (c_int, POINTER(c_int)),
     "instance count"),
    ("TavixC_VoLst", c_int, (c_int, POINTER(c_double), POINTER(c_double)),
     "instance X Y"),
    ("TavixC_VoIdx", c_int, (c_int, c_int, POINTER(c_double), POINTER(c_double)),
     "instance index X Y"),
    ("TavixC_VoEnd", c_int, (c_int,),
     "instance"),
    # One-bit picture
    ("TavixC_GrpStt", c_int, (c_int, c_int, c_int),
     "instance height width"),
    ("TavixC_GrpGet", c_int, (c_int, c_int, c_int, POINTER(c_int)),
     "instance row column ink"),
    ("TavixC_GrpEnd", c_int, (c_int,),
     "instance"),
]


def declare(library):
    """Gives every call of a loaded library its types."""
    for name, result, arguments, _ in CALLS:
        call = getattr(library, name)
        call.restype = result
        call.argtypes = arguments
