#include "core/settings/ini_document.h"
#include "fuzz/target.h"

// A settings file: read and written it is the same, and every change can be read back and touches nothing else.
int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view input = fuzz::text_of(bytes, size);
    settings::IniDocument document(input);
    fuzz::require(document.bytes() == input);
    for (const std::string& section : document.sections())
        for (const std::string& key : document.keys(section)) {
            const auto value = document.value(section, key);
            fuzz::require(value.has_value());
            settings::IniDocument changed(input);
            if (!changed.set(section, key, "new value"))
                continue; // a name that no program could write
            fuzz::require(changed.value(section, key) == "new value");
            fuzz::require(changed.keys(section) == document.keys(section));
            fuzz::require(changed.remove_key(section, key));
            fuzz::require(settings::IniDocument(changed.bytes()).keys(section).size() + 1 ==
                          document.keys(section).size());
        }
    if (document.set("Added", "key", "value"))
        fuzz::require(settings::IniDocument(document.bytes()).value("Added", "key") == "value");
    return 0;
}
