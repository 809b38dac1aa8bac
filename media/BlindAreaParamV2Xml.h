#pragma once

#include "core/IDomainXml.h"
#include "domain/MediaRecords.h"

#include <string>
#include <vector>

/// The hidden areas of a picture: the "BlindAreaParamList" document.
///
/// The reader appends to the list. A missing "AreaId" gives -1, and anything else that is missing false, an empty text
/// or a new value; so does an "AreaParam" that AreaParamV2Xml refuses. "BlindAreaParamList" is the root of
/// BlindAreaParamXml, too.
class BlindAreaParamV2Xml : public IDomainXml
{
public:
    BlindAreaParamV2Xml();
    ~BlindAreaParamV2Xml() override;

    bool createXmlString(const std::vector<BlindAreaParamV2>& areas, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<BlindAreaParamV2>& areas) const;
};
