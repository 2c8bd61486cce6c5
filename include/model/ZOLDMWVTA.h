#pragma once

#include "values/TrellisApi.h"

class ZOLGYRError;

// ZOLDMWVTA: the transaction of the data manager.
class TRELLIS_API ZOLDMWVTA {
public:
    // Writes all that is pending, of the model and of the configuration service, in one transaction. 0 when done, else
    // the number of the error, and then nothing is written and memory is as before: 20901, 20902, 20903, 20904; 60201
    // when no database is open. The numbers are 1. The second form also gives the parameters of the message, for
    // callers that show it; it leaves a code that stands.
    static int Commit(int, int);
    static int Commit(int, int, ZOLGYRError& error);
    // Drops the pending changes of the model; those of the service stay. The number is 1.
    static void RollBack(int);
};
