#ifndef TRELLIS_SITE_TRELLISCONTROLS_H
#define TRELLIS_SITE_TRELLISCONTROLS_H

/* The control functions of a site: a shared object that the site's setting CONTROL_LIBRARY names, in plain C. It
   exports one symbol, TrellisGetControls, which gives a table of functions. A null pointer in the table leaves
   that decision to trellis. The library is loaded once, at the first question, and never unloaded.

   All functions are called in the thread of the windows, and no exception may leave them. Texts are UTF-8. What
   a function is given belongs to trellis: it is neither changed nor freed nor kept. */

#include "values/ObjID.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The layout that this header describes. The table grows at its end only, so an older library goes on
   working. */
#define TRELLIS_CONTROLS_VERSION 1

/* Who works, and as what; empty texts for what is not known. Never null. */
typedef struct TrellisIdentity {
    const char* person;
    const char* role;
    const char* organization;
} TrellisIdentity;

/* Options as three arrays of the same length. None of the texts is null. */
typedef struct TrellisOptionList {
    int32_t count;
    char** names;
    char** categories;
    char** descriptions;
} TrellisOptionList;

typedef struct TrellisControls {
    uint32_t version; /* TRELLIS_CONTROLS_VERSION */

    /* Which options a user may choose from: called each time a list of options is filled from the dictionary of
       a product.
         product  the part whose dictionary it is; the empty text where there is none
         given    the options of the dictionary
         shown    empty at first; the function fills it with what is to be listed instead
       Returns 0 when `shown` holds: with a count above 0 it replaces the list, with a count of 0 the list stays.
       Any other number leaves the list as it is.
       The three arrays of `shown` and each text in them come from malloc, calloc or strdup, also after another
       number than 0; trellis frees them. Nothing of `given` may stand in them, and nothing twice. */
    int32_t (*optionListToDisplay)(const TrellisIdentity* identity, const ObjID* product,
                                   const TrellisOptionList* given, TrellisOptionList* shown);
} TrellisControls;

/* The one symbol of the library. The table lives as long as the library. */
#define TRELLIS_CONTROLS_SYMBOL "TrellisGetControls"
typedef const TrellisControls* (*TrellisGetControlsFunction)(void);
__attribute__((visibility("default"))) const TrellisControls* TrellisGetControls(void);

#ifdef __cplusplus
}
#endif

#endif
