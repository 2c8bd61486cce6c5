#include "toolkit/ZOLGYRResource.h"

#include "toolkit/ResourceStore.h"
#include "values/ZOLGYRError.h"

ZOLGYRResource::ZOLGYRResource(const ZOLString& file)
    : _file(file), _texts(trellis::ResourceStore::Current().Get(file.ConvertToChar())) {}

ZOLGYRResource::~ZOLGYRResource() = default;
ZOLGYRResource::ZOLGYRResource(const ZOLGYRResource&) = default;
ZOLGYRResource& ZOLGYRResource::operator=(const ZOLGYRResource&) = default;

int ZOLGYRResource::GetValue(const ZOLString& key, ZOLUnicodeString& value) const {
    const auto found = _texts->texts.find(key.ConvertToChar());
    if (found == _texts->texts.end())
        return 0;
    value = ZOLUnicodeString(found->second);
    return 1;
}

int ZOLGYRResource::GetValue(const ZOLString& key, ZOLUnicodeString& value,
                             const ZOLListVal<ZOLUnicodeString>& parameters) const {
    if (!GetValue(key, value))
        return 0;
    value = Fill(value, parameters);
    return 1;
}

ZOLUnicodeString ZOLGYRResource::GetValueOr(const ZOLString& key, const ZOLUnicodeString& missing) const {
    ZOLUnicodeString value;
    return GetValue(key, value) ? value : missing;
}

void ZOLGYRResource::GetStatus(ZOLGYRError& error) const {
    _texts->GetStatus(_file.ConvertToChar(), error);
}

ZOLUnicodeString ZOLGYRResource::Fill(const ZOLUnicodeString& text,
                                      const ZOLListVal<ZOLUnicodeString>& parameters) {
    const std::string& bytes = text.Bytes();
    std::string filled;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const bool place =
            bytes[i] == '%' && i + 1 < bytes.size() && bytes[i + 1] >= '1' && bytes[i + 1] <= '9';
        if (!place) {
            filled += bytes[i];
            continue;
        }
        const int number = bytes[++i] - '0';
        if (number <= parameters.Size())
            filled += parameters[number].Bytes();
    }
    return filled;
}
