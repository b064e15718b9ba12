// Bitmaps of 8 x 6 pixels written as numbers: a header, two colours (0x00RRGGBB), and six rows of
// one bit a pixel, the lowest row first. The rows differ, so that a picture in the wrong place
// shows.
#define STRIPED(zero, one) \
  BEGIN                    \
  40L, 8L, 6L, 1, 1, 0L, 0L, 0L, 0L, 0L, 0L, zero, one, 0x55L, 0xF0L, 0x01L, 0xAAL, 0x3CL, 0xFFL END
