/* A library of a site that is wrong in the way that the name of the person says. */

#include "site/TrellisControls.h"

#include <stdlib.h>
#include <string.h>

#ifndef CONTROLS_VERSION
#define CONTROLS_VERSION TRELLIS_CONTROLS_VERSION
#endif

static char** textsOf(int32_t count, const char* text) {
    char** texts = calloc((size_t)count, sizeof(char*));
    for (int32_t i = 0; i < count; ++i)
        texts[i] = strdup(text);
    return texts;
}

static void freeTexts(char** texts, int32_t count) {
    for (int32_t i = 0; i < count; ++i)
        free(texts[i]);
    free(texts);
}

/* What it gives up itself it frees, so that only the reader of the answer can leak. */
static int32_t optionListToDisplay(const TrellisIdentity* identity, const ObjID* product,
                                   const TrellisOptionList* given, TrellisOptionList* shown) {
    const char* fault = identity->person;
    const int isBelow = !strcmp(fault, "a count below 0");
    const int32_t count = isBelow ? 0 : 2;
    (void)product;
    shown->count = isBelow ? -2 : count;
    if (!strcmp(fault, "no arrays"))
        return 0;
    shown->names = textsOf(count, "name");
    shown->categories = textsOf(count, "category");
    if (!strcmp(fault, "a missing array"))
        return 0;
    shown->descriptions = textsOf(count, "description");
    if (!strcmp(fault, "a missing text")) {
        free(shown->categories[1]);
        shown->categories[1] = NULL;
    }
    if (!strcmp(fault, "an array twice")) {
        freeTexts(shown->descriptions, count);
        shown->descriptions = shown->categories;
    }
    if (!strcmp(fault, "a text twice")) {
        free(shown->names[1]);
        shown->names[1] = shown->names[0];
    }
    if (!strcmp(fault, "what was given")) {
        freeTexts(shown->names, count);
        freeTexts(shown->categories, count);
        freeTexts(shown->descriptions, count);
        *shown = *given;
    }
    if (!strcmp(fault, "a text that was given")) {
        free(shown->names[0]);
        shown->names[0] = given->names[0];
    }
    if (!strcmp(fault, "nothing, though it may not be asked"))
        return 7;
    return 0;
}

const TrellisControls* TrellisGetControls(void) {
    static const TrellisControls controls = {CONTROLS_VERSION, optionListToDisplay};
    return &controls;
}
