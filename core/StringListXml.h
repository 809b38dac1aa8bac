#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <vector>

/// A list of texts: the "StringParamList" document.
///
/// The reader appends to the list. An item without "String" gives an empty text; items of other names are passed over.
class StringListXml : public IDomainXml
{
public:
    StringListXml();
    ~StringListXml() override;

    bool createXmlString(const std::vector<std::string>& list, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<std::string>& list) const;
};
