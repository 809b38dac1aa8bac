#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// A size of pictures: the "VideoResolution" document.
///
/// A missing attribute leaves its field in the document form; in the node form it resets it and prints a line.
class VideoResolutionXml : public IDomainXml
{
public:
    VideoResolutionXml();
    ~VideoResolutionXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setVideoResolution(const VideoResolution& resolution) { resolution_ = resolution; }
    VideoResolution& getVideoResolution() { return resolution_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const VideoResolution& resolution);
    static bool readElement(const TiXmlElement& element, VideoResolution& resolution);
    /// @}

    /// @name Lists in other documents
    /// They stand in a container that each document names. The reader appends to the list.
    /// @{
    static void writeList(TiXmlNode& parent, const char* container, const std::vector<VideoResolution>& resolutions);
    static bool readList(const TiXmlElement& parent, const char* container, std::vector<VideoResolution>& resolutions);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const VideoResolution& resolution, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, VideoResolution& resolution) const;
    bool createXmlString(const VideoResolution& resolution, std::string& text) const;
    bool parseXmlString(const std::string& text, VideoResolution& resolution) const;
    /// @}

private:
    VideoResolution resolution_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
