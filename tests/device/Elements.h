#pragma once

#include <string>
#include <tinyxml.h>

// What the tests of codecs on an element share.

inline std::string printed(const TiXmlNode& node)
{
    TiXmlPrinter printer;
    printer.SetIndent("\t");
    node.Accept(&printer);
    return printer.Str();
}

/// Reads @p text as a parent would, from its root element.
template <class Codec>
bool readsElement(Codec& codec, const std::string& text)
{
    TiXmlDocument document;
    document.Parse(text.c_str());
    codec.setXmlNode(document.RootElement());
    return codec.parseXmlNode();
}
