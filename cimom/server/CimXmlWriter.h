#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace Cimom {

// Builds CIM-XML text the way wbemcli reads it: every element gets an end tag
// except NAMESPACE, CLASSNAME and ERROR when empty, and only the five named
// entities are used for escaping.
//
// Answers run to megabytes, so nothing here allocates per element: tags are
// kept as views (callers pass literals), attributes as views on the caller's
// strings, and text is escaped straight into the output.
class CimXmlWriter {
public:
    struct Attribute {
        std::string_view name;
        std::string_view value;
    };
    // A handful of attributes held in place; the values must outlive the
    // call that writes them.
    class Attributes {
    public:
        Attributes() : _size(0) {}
        Attributes(std::initializer_list<Attribute> items);
        void add(std::string_view name, std::string_view value);
        Attribute const* begin() const { return _items.data(); }
        Attribute const* end() const { return _items.data() + _size; }

    private:
        // No member initializers: they would keep `= {}` arguments below
        // from compiling inside the enclosing class.
        std::array<Attribute, 8> _items;
        std::size_t _size;
    };

    // A place to return to when a part of the answer has to be taken back.
    struct Mark {
        std::size_t length;
        std::size_t depth;
    };

    // Without the declaration, the writer makes a fragment to embed elsewhere.
    explicit CimXmlWriter(bool declaration = true);

    CimXmlWriter& open(std::string_view tag, Attributes const& attributes = {});
    CimXmlWriter& close();
    // An element with no children: self-closed only where the client allows it.
    CimXmlWriter& empty(std::string_view tag, Attributes const& attributes = {});
    CimXmlWriter& text(std::string_view content);
    // <tag>content</tag> in one call.
    CimXmlWriter& element(std::string_view tag, std::string_view content,
                          Attributes const& attributes = {});

    // Already written CIM-XML, such as a part of an earlier answer.
    CimXmlWriter& raw(std::string_view xml) {
        _out += xml;
        return *this;
    }

    // Where one element begins and ends in the text.
    struct Span {
        std::size_t begin;
        std::size_t end;
    };
    // From now on, records the span of every element opened at this depth,
    // so that a caller can hand the elements out one by one later.
    void recordSpans(std::vector<Span>* spans, std::size_t depth) {
        _spans = spans;
        _spanDepth = depth;
    }

    // Positions count everything written, sent parts included.
    Mark mark() const { return {_sent + _out.size(), _open.size()}; }
    // Whether what was written since the mark is still here to take back.
    bool canRollback(Mark const& mark) const { return mark.length >= _sent; }
    // Drops everything written since the mark.
    void rollback(Mark const& mark);

    // An answer that goes out in parts: once `partBytes` are written, the
    // next commit() hands them to `send` and the writer starts afresh, so a
    // long answer is never held whole. Without it, commit() does nothing.
    using PartSink = std::function<void(std::string&&)>;
    void sendPartsTo(PartSink send, std::size_t partBytes) {
        _send = std::move(send);
        _partBytes = partBytes;
    }
    // A point where what is written may go: between two whole elements.
    void commit() {
        if (_send && _out.size() >= _partBytes)
            _sendPart();
    }
    // How much has gone out in parts.
    std::size_t sent() const { return _sent; }

    // Room for this many more characters, so that a long answer grows once.
    void reserve(std::size_t more) { _out.reserve(_out.size() + more); }
    std::string const& str() const { return _out; }
    // Hands the text not sent yet over; the writer is empty afterwards.
    std::string take();
    bool balanced() const { return _open.empty(); }

    static std::string escape(std::string_view content);
    // The text with every byte sequence that is not UTF-8, and every
    // character that XML 1.0 does not allow in a document, replaced by
    // U+FFFD (a control character by a space). For text that comes from a request and goes back
    // into an answer, such as an error's description.
    static std::string xmlSafe(std::string_view text);

private:
    void _startTag(std::string_view tag, Attributes const& attributes);
    void _escapeInto(std::string_view content);
    void _sendPart();

    std::string _out;
    std::vector<std::string_view> _open;
    std::vector<Span>* _spans = nullptr;
    std::size_t _spanDepth = 0;
    PartSink _send;
    std::size_t _partBytes = 0;
    std::size_t _sent = 0;
};

} // namespace Cimom
