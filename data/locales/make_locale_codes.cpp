// make_locale_codes FILE: writes the rows {"de", 7} and {"de_AT", 3079} of a table into FILE, ascending by
// name: the number of each language, and of each country in which its number is another. Asked while the
// program runs, the library that knows them would cost it half a megabyte.
#include <unicode/uloc.h>

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <map>
#include <string>

namespace {

std::map<std::string, std::uint32_t> codes;

void add(const std::string& language) {
    const std::uint32_t ofLanguage = uloc_getLCID(language.c_str());
    if (ofLanguage != 0) codes[language] = ofLanguage;
    for (const char* const* country = uloc_getISOCountries(); *country != nullptr; ++country) {
        const std::string both = language + '_' + *country;
        if (const std::uint32_t code = uloc_getLCID(both.c_str()); code != ofLanguage) codes[both] = code;
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) return EXIT_FAILURE;
    for (const char* const* language = uloc_getISOLanguages(); *language != nullptr; ++language)
        add(*language);
    add("quz");  // which Debian has for Peru, and the list has not
    std::ofstream file(argv[1]);
    for (const auto& [name, code] : codes) file << "{\"" << name << "\", " << code << "},\n";
    return file.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
