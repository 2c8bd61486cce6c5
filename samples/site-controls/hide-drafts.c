/* Control functions of a site, as an example: options whose description begins with "Draft" are seen by people
   who act as "engineer" alone. */

#include "site/TrellisControls.h"

#include <stdlib.h>
#include <string.h>

static const char draftMark[] = "Draft";

static int isHidden(const TrellisIdentity* identity, const char* description) {
    return strcmp(identity->role, "engineer") != 0 && strncmp(description, draftMark, strlen(draftMark)) == 0;
}

/* Adds one text at the end of an array; 0 without memory. */
static int append(char** texts, int32_t count, const char* text) {
    texts[count] = strdup(text);
    return texts[count] != NULL;
}

static int32_t optionListToDisplay(const TrellisIdentity* identity, const ObjID* product,
                                   const TrellisOptionList* given, TrellisOptionList* shown) {
    size_t room = given->count > 0 ? (size_t)given->count : 1;
    (void)product;
    /* All that was made belongs to trellis from here on, whatever is returned. */
    shown->names = calloc(room, sizeof(char*));
    shown->categories = calloc(room, sizeof(char*));
    shown->descriptions = calloc(room, sizeof(char*));
    if (!shown->names || !shown->categories || !shown->descriptions)
        return 1;
    for (int32_t i = 0; i < given->count; ++i) {
        if (isHidden(identity, given->descriptions[i]))
            continue;
        /* Counted first, so that a text that was made before memory ran out is freed, too. */
        const int32_t at = shown->count++;
        if (!append(shown->names, at, given->names[i]) ||
            !append(shown->categories, at, given->categories[i]) ||
            !append(shown->descriptions, at, given->descriptions[i]))
            return 1;
    }
    return 0;
}

const TrellisControls* TrellisGetControls(void) {
    static const TrellisControls controls = {TRELLIS_CONTROLS_VERSION, optionListToDisplay};
    return &controls;
}
