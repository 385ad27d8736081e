#pragma once
// Text quoted into the CIM-XML that veldra-listen writes: the answers it
// gives and the subscription it sends.
#include <string>

std::string escapedXml(std::string const& text);
