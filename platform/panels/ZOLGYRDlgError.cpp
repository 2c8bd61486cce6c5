#include "panels/ZOLGYRDlgError.h"

#include "toolkit/ErrorBox.h"

int ZOLGYRDlgError::Display(ZOLDialog* father, const ZOLGYRError& error, int question) {
    return trellis::ShowError(father, error, question != 0);
}
