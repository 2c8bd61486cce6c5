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

static int32_t optionListToDisplay(const TrellisIdentity* identity, const ObjID* product,
                                   const TrellisOptionList* given, TrellisOptionList* shown) {
    const char* fault = identity->person;
    (void)product;
    shown->count = 2;
    if (!strcmp(fault, "no arrays"))
        return 0;
    shown->names = textsOf(2, "name");
    shown->categories = textsOf(2, "category");
    if (!strcmp(fault, "a missing array"))
        return 0;
    shown->descriptions = textsOf(2, "description");
    if (!strcmp(fault, "a count below 0"))
        shown->count = -2;
    if (!strcmp(fault, "a missing text")) {
        free(shown->categories[1]);
        shown->categories[1] = NULL;
    }
    if (!strcmp(fault, "an array twice"))
        shown->descriptions = shown->categories;
    if (!strcmp(fault, "a text twice"))
        shown->names[1] = shown->names[0];
    if (!strcmp(fault, "what was given"))
        *shown = *given;
    if (!strcmp(fault, "a text that was given"))
        shown->names[0] = given->names[0];
    if (!strcmp(fault, "nothing, though it may not be asked"))
        return 7;
    return 0;
}

const TrellisControls* TrellisGetControls(void) {
    static const TrellisControls controls = {CONTROLS_VERSION, optionListToDisplay};
    return &controls;
}
