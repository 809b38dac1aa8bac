#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <vector>

/// The fonts of the texts on several streams: the "OSDFontList" document.
///
/// The two readers disagree about an item that lacks "CameraID", "StreamID" or "FontID". `parseXmlString` prints a line
/// for each of the first two and takes 1, and takes 0 for the third; `parseDomainXmlNode` gives false, with the items
/// before it in the list. Both take true for a missing "InverseFlag", 100 for a missing opacity and 0 for a missing
/// share of colour.
class VideoOSDFontXml : public IDomainXml
{
public:
    VideoOSDFontXml();
    ~VideoOSDFontXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const std::vector<VideoOSDFont>& fonts, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<VideoOSDFont>& fonts) const;
    bool createXmlString(const std::vector<VideoOSDFont>& fonts, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<VideoOSDFont>& fonts) const;
    /// @}
};
