#include "site/AdministratorKeys.h"

namespace trellis {

const std::vector<AdministratorKey>& AdministratorKeys() {
    static const std::vector<AdministratorKey> keys = {
        {"QRD_ALLOWED_EFF_TYPE", "all types",
         "effectivity types that may be allowed on a part: words out of RANGE, DATE, OPTION"},
        {"QRD_PROPOSED_EFF", "off", "Y makes the check button of planned effectivities available"},
        {"QRD_CONFIG_IMPORT_CH_REPOSITORY", "no import", "folder of the import files of config handlers"},
        {"QRD_CONFIG_IMPORT_DICT_REPOSITORY", "no import", "folder of the import files of dictionaries"},
        {"QRD_CONFIG_IMPORT_DICT_FILENAME_ATTR", "S_PART_NUMBER",
         "attribute of a part that names its import file"},
    };
    return keys;
}

} // namespace trellis
