#ifndef TRELLIS_VALUES_EFFPARAM_H
#define TRELLIS_VALUES_EFFPARAM_H

/* EffParam: one effectivity term as a flat record of plain C, for functions that a site writes. */

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The layout that this header describes. It grows at the end only: a reader tests `version` before it reads a
   field of a later layout. */
#define TRELLIS_EFFPARAM_VERSION 1

/* The program and milestone that a bound comes from, empty texts when there is none, and by how many days or
   numbers the bound stands off the milestone's value. */
typedef struct EffParamMilestone {
    char* program;
    char* id;
    int32_t offset;
} EffParamMilestone;

/* Texts are UTF-8 and never null. Seconds count from 1970-01-01 in UTC; 0 is an open bound, so that the day
   1970-01-01 itself is written as 1. */
typedef struct EffParam {
    uint32_t version;
    char* type;          /* a word of ZOLQRDCfgEffectivityType */
    int32_t optionCount; /* 1 for an option or a modification, the number of options for a package */
    char** options;      /* null when the count is 0 */
    int32_t first;
    int32_t last; /* 0: open */
    int64_t start;
    int64_t end;
    EffParamMilestone startMilestone;
    EffParamMilestone endMilestone;
} EffParam;

/* Frees all texts of a record and leaves it empty; not the record itself. A null pointer is legal. Whoever
   asked for the record calls it. All memory in it comes from malloc. */
__attribute__((visibility("default"))) void EffParamFree(EffParam* parameter);

#ifdef __cplusplus
}
#endif

#endif
