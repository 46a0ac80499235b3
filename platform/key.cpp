#include "platform/key.h"

namespace zifferon {

namespace {

int codeOfCharacter(char16_t character) {
    if (character >= u'0' && character <= u'9') return character;
    if (character >= u'A' && character <= u'Z') return character;
    if (character >= u'a' && character <= u'z') return character - u'a' + u'A';
    switch (character) {
        case 8:
            return keyCode::back;
        case 13:
            return keyCode::enter;
        case 27:
            return keyCode::escape;
        case u' ':
            return keyCode::space;
        case u'+':
        case u'*':
            return 187;
        case u',':
            return 188;
        case u'-':
            return 189;
        case u'.':
            return 190;
        case u'/':
            return 55;
        case u'%':
            return 53;
        case u'=':
            return 48;
        case u'<':
        case u'>':
            return 226;
        default:
            return 0;
    }
}

}  // namespace

Key keyOfCharacter(char16_t character) { return {codeOfCharacter(character), character}; }

}  // namespace zifferon
