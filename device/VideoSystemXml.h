#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// A television system: the "VideoSystem" document, and "VideoSystemList" for several.
///
/// A missing attribute resets its field; in the node form it prints a line as well.
class VideoSystemXml : public IDomainXml
{
public:
    VideoSystemXml();
    ~VideoSystemXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setVideoSystem(const VideoSystem& system) { system_ = system; }
    VideoSystem& getVideoSystem() { return system_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const VideoSystem& system);
    static bool readElement(const TiXmlElement& element, VideoSystem& system);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const VideoSystem& system, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<VideoSystem>& systems, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, VideoSystem& system) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<VideoSystem>& systems) const;
    bool createXmlString(const VideoSystem& system, std::string& text) const;
    bool createXmlString(const std::vector<VideoSystem>& systems, std::string& text) const;
    bool parseXmlString(const std::string& text, VideoSystem& system) const;
    bool parseXmlString(const std::string& text, std::vector<VideoSystem>& systems) const;
    /// @}

private:
    VideoSystem system_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
