#ifndef TRELLIS_VALUES_OBJID_H
#define TRELLIS_VALUES_OBJID_H

/* ObjID: the identifier of a part or link as a flat value of plain C, for functions that a site writes: 50
   printable characters and a zero byte. An empty object has the empty text. */

#ifdef __cplusplus
extern "C" {
#endif

typedef struct ObjID {
    char text[51];
} ObjID;

#ifdef __cplusplus
}
#endif

#endif
