#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Builds CIM-XML text the way wbemcli reads it: every element gets an end tag
// except NAMESPACE, CLASSNAME and ERROR when empty, and only the five named
// entities are used for escaping.
class CimXmlWriter {
public:
    using Attributes = std::vector<std::pair<std::string, std::string>>;

    CimXmlWriter();

    CimXmlWriter& open(std::string_view tag, const Attributes& attributes = {});
    CimXmlWriter& close();
    // An element with no children: self-closed only where the client allows it.
    CimXmlWriter& empty(std::string_view tag, const Attributes& attributes = {});
    CimXmlWriter& text(std::string_view content);
    // <tag>content</tag> in one call.
    CimXmlWriter& element(std::string_view tag, std::string_view content, const Attributes& attributes = {});

    const std::string& str() const { return _out; }
    bool balanced() const { return _open.empty(); }

    static std::string escape(std::string_view content);

private:
    void _startTag(std::string_view tag, const Attributes& attributes);

    std::string _out;
    std::vector<std::string> _open;
};
