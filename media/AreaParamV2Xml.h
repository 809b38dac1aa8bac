#pragma once

#include "core/IDomainXml.h"
#include "domain/MediaRecords.h"

#include <string>

/// A rectangle on a picture, in fractions: the "AreaParam" document.
///
/// The reader gives false at the first missing property; the fields before that property are set then. The "AreaParam"
/// of AreaParamXml bears the same root.
class AreaParamV2Xml : public IDomainXml
{
public:
    AreaParamV2Xml();
    ~AreaParamV2Xml() override;

    bool createXmlString(const AreaParamV2& area, std::string& text) const;
    bool parseXmlString(const std::string& text, AreaParamV2& area) const;
};
