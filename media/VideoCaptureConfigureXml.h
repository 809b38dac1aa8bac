#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <vector>

/// What a capture input of a camera is configured to: the "VideoCaptureConfigure" document, and
/// "VideoCaptureConfigureList" for several.
///
/// A missing property resets its field and prints a line.
class VideoCaptureConfigureXml : public IDomainXml
{
public:
    VideoCaptureConfigureXml();
    ~VideoCaptureConfigureXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to; items of other names are passed over.
    /// @{
    bool createDomainXmlNode(const VideoCaptureConfigure& capture, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<VideoCaptureConfigure>& captures,
                             SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, VideoCaptureConfigure& capture) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<VideoCaptureConfigure>& captures) const;
    bool createXmlString(const VideoCaptureConfigure& capture, std::string& text) const;
    bool createXmlString(const std::vector<VideoCaptureConfigure>& captures, std::string& text) const;
    bool parseXmlString(const std::string& text, VideoCaptureConfigure& capture) const;
    bool parseXmlString(const std::string& text, std::vector<VideoCaptureConfigure>& captures) const;
    /// @}
};
