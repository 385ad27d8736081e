#include "MofTokenizer.h"

#include "MofError.h"

#include <cctype>

namespace Cimom {

MofTokenizer::MofTokenizer(std::string text, std::string fileName)
    : _text(std::move(text)), _fileName(std::move(fileName)) {}

void MofTokenizer::_fail(std::string const& what) const {
    throw MofError(_fileName, _line, what);
}

void MofTokenizer::_skipSpaceAndComments() {
    while (_pos < _text.size()) {
        char c = _text[_pos];
        if (c == '\n') {
            ++_line;
            ++_pos;
        } else if (std::isspace(static_cast<unsigned char>(c))) {
            ++_pos;
        } else if (c == '/' && _pos + 1 < _text.size() && _text[_pos + 1] == '/') {
            while (_pos < _text.size() && _text[_pos] != '\n')
                ++_pos;
        } else if (c == '/' && _pos + 1 < _text.size() && _text[_pos + 1] == '*') {
            int startLine = _line;
            _pos += 2;
            while (_pos + 1 < _text.size() && !(_text[_pos] == '*' && _text[_pos + 1] == '/')) {
                if (_text[_pos] == '\n')
                    ++_line;
                ++_pos;
            }
            if (_pos + 1 >= _text.size())
                throw MofError(_fileName, startLine, "unterminated comment");
            _pos += 2;
        } else {
            return;
        }
    }
}

char MofTokenizer::_unescape() {
    // _pos is on the character after the backslash.
    if (_pos >= _text.size())
        _fail("unterminated escape");
    char c = _text[_pos++];
    switch (c) {
    case 'n':
        return '\n';
    case 't':
        return '\t';
    case 'r':
        return '\r';
    case 'b':
        return '\b';
    case 'f':
        return '\f';
    case '"':
        return '"';
    case '\'':
        return '\'';
    case '\\':
        return '\\';
    default:
        _fail(std::string("unknown escape \\") + c);
    }
}

MofToken MofTokenizer::_readString() {
    MofToken t{MofToken::Kind::String, "", _line};
    ++_pos;
    while (true) {
        if (_pos >= _text.size() || _text[_pos] == '\n')
            _fail("unterminated string");
        char c = _text[_pos++];
        if (c == '"')
            break;
        if (c == '\\')
            t.text += _unescape();
        else
            t.text += c;
    }
    return t;
}

MofToken MofTokenizer::_readChar() {
    MofToken t{MofToken::Kind::Char, "", _line};
    ++_pos;
    if (_pos >= _text.size())
        _fail("unterminated char literal");
    char c = _text[_pos++];
    t.text = c == '\\' ? std::string(1, _unescape()) : std::string(1, c);
    if (_pos >= _text.size() || _text[_pos] != '\'')
        _fail("unterminated char literal");
    ++_pos;
    return t;
}

MofToken MofTokenizer::_readNumber() {
    MofToken t{MofToken::Kind::Integer, "", _line};
    size_t start = _pos;
    if (_text[_pos] == '-' || _text[_pos] == '+')
        ++_pos;
    if (_pos + 1 < _text.size() && _text[_pos] == '0' &&
        (_text[_pos + 1] == 'x' || _text[_pos + 1] == 'X')) {
        _pos += 2;
        while (_pos < _text.size() && std::isxdigit(static_cast<unsigned char>(_text[_pos])))
            ++_pos;
    } else {
        while (_pos < _text.size()) {
            char c = _text[_pos];
            if (std::isdigit(static_cast<unsigned char>(c))) {
                ++_pos;
            } else if (c == '.' || c == 'e' || c == 'E') {
                t.kind = MofToken::Kind::Real;
                ++_pos;
                if ((c == 'e' || c == 'E') && _pos < _text.size() &&
                    (_text[_pos] == '-' || _text[_pos] == '+'))
                    ++_pos;
            } else {
                break;
            }
        }
    }
    t.text = _text.substr(start, _pos - start);
    if (t.text == "-" || t.text == "+")
        _fail("sign without a number");
    if (_pos < _text.size() &&
        (std::isalpha(static_cast<unsigned char>(_text[_pos])) || _text[_pos] == '_'))
        _fail("bad number '" + t.text + _text[_pos] + "'");
    return t;
}

MofToken MofTokenizer::next() {
    _skipSpaceAndComments();
    if (_pos >= _text.size())
        return MofToken{MofToken::Kind::End, "", _line};
    char c = _text[_pos];
    if (c == '"')
        return _readString();
    if (c == '\'')
        return _readChar();
    if (std::isdigit(static_cast<unsigned char>(c)) ||
        ((c == '-' || c == '+') && _pos + 1 < _text.size() &&
         std::isdigit(static_cast<unsigned char>(_text[_pos + 1]))))
        return _readNumber();
    if (std::isalpha(static_cast<unsigned char>(c)) || c == '_') {
        size_t start = _pos;
        while (_pos < _text.size() &&
               (std::isalnum(static_cast<unsigned char>(_text[_pos])) || _text[_pos] == '_'))
            ++_pos;
        return MofToken{MofToken::Kind::Identifier, _text.substr(start, _pos - start), _line};
    }
    if (c == '#') {
        size_t start = ++_pos;
        while (_pos < _text.size() && std::isalpha(static_cast<unsigned char>(_text[_pos])))
            ++_pos;
        std::string word = _text.substr(start, _pos - start);
        if (word != "pragma")
            _fail("unknown directive '#" + word + "'");
        return MofToken{MofToken::Kind::Pragma, word, _line};
    }
    static std::string const punct = "{}[]();,:=$";
    if (punct.find(c) != std::string::npos) {
        ++_pos;
        return MofToken{MofToken::Kind::Punct, std::string(1, c), _line};
    }
    _fail(std::string("unexpected character '") + c + "'");
}

} // namespace Cimom
