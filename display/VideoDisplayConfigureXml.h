#pragma once

#include "core/IDomainXml.h"
#include "domain/DisplayRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>

/// The video output of a camera: the "VideoDisplay" document.
///
/// A missing property resets its field. The devices replace those that the record has.
class VideoDisplayConfigureXml : public IDomainXml
{
public:
    VideoDisplayConfigureXml();
    ~VideoDisplayConfigureXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const VideoDisplayConfigure& display, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, VideoDisplayConfigure& display) const;
    bool createXmlString(const VideoDisplayConfigure& display, std::string& text) const;
    bool parseXmlString(const std::string& text, VideoDisplayConfigure& display) const;
    /// @}
};
