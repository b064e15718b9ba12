/* Identifiers of the library's resources; read by the resource compiler too. */
#pragma once

/* Button k (0..10) has the control id and the four bitmaps from IDB_BUTTON + 4 k on: up, down,
   focused, disabled. 445..448 do not exist. */
#define IDB_BUTTON 401
#define IDB_PAN_ON 449  /* and 450: the pan button's focused and disabled faces while pressed in */
#define IDB_BAND_ON 451 /* and 452: the band-zoom button's */
