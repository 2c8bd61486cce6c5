#pragma once

#include "service/ConfigurationMemory.h"

namespace trellis {

// DictionaryEditor: reads a dictionary and adds to it and takes from it, with its rules of names, rights and
// owners.
class DictionaryEditor {
public:
    explicit DictionaryEditor(ConfigurationMemory& memory) : _memory(memory) {}

    void GetCategories(const RecordOf<ConfigItemRow>& dictionary, ZOLListValZOLIQrdCategory_var& categories);
    void GetOptions(const RecordOf<ConfigItemRow>& dictionary, ZOLListValZOLQRDCfgEffectivity& options,
                    ZOLGYRError& error);
    ZOLIQrdCategory_var AddCategory(const RecordOf<ConfigItemRow>& dictionary, const ZOLUnicodeString& name,
                                    const ZOLUnicodeString& description, int exclusivity, int mandatory,
                                    ZOLGYRError& error);
    ZOLIQrdEffectivity_var AddOption(const RecordOf<ConfigItemRow>& dictionary,
                                     const ZOLIQrdCategory_var& category, const ZOLUnicodeString& name,
                                     const ZOLUnicodeString& description, ZOLGYRError& error);
    void RemoveCategory(const ZOLIQrdCategory_var& category, ZOLGYRError& error);
    void RemoveOption(const ZOLIQrdEffectivity_var& option, ZOLGYRError& error);

private:
    ConfigurationMemory& _memory;
};

} // namespace trellis
