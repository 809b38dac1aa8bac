#pragma once

#include "core/SafePointer.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

// What the rows of the list of codecs hold: each reads a text into a new record and writes that again, the way that
// codecs of its shape do.

inline std::string printed(const TiXmlNode& node)
{
    TiXmlPrinter printer;
    printer.SetIndent("\t");
    node.Accept(&printer);
    return printer.Str();
}

/// Document form. The document holds the parsed tree, and behind it what is written.
template <class Codec>
bool rewriteDocument(const std::string& text, std::string& rewritten)
{
    Codec codec;
    codec.setXmlString(text);
    if (!codec.parseXmlString()) return false;

    const TiXmlNode* parsed = codec.getXmlNode()->LastChild();
    codec.createXmlNode();
    rewritten.clear();
    for (const TiXmlNode* root = parsed->NextSibling(); root != nullptr; root = root->NextSibling())
        rewritten += printed(*root);
    return true;
}

/// Document form of codecs that keep one element, in place of a document that grows.
template <class Codec>
bool rewriteBackedDocument(const std::string& text, std::string& rewritten)
{
    Codec codec;
    codec.setXmlString(text);
    if (!codec.parseXmlString() || !codec.createXmlString()) return false;
    rewritten = codec.getXmlString();
    return true;
}

/// The same for those that parents only read and write, element by element.
template <class Codec>
bool rewriteBackedElement(const std::string& text, std::string& rewritten)
{
    SafePointer<DomainXmlNode> parsed;
    if (!DomainXmlNode::parse(text, parsed)) return false;
    Codec codec;
    codec.setXmlNode(parsed->getXmlNode());
    if (!codec.parseXmlNode()) return false;
    codec.createXmlNode();
    rewritten = printed(*codec.getXmlNode());
    return true;
}

/// Node form, of records and of lists.
template <class Codec, class Record>
bool rewriteText(const std::string& text, std::string& rewritten)
{
    Record record;
    return Codec().parseXmlString(text, record) && Codec().createXmlString(record, rewritten);
}
