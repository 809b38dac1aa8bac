#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// What a device does when a camera's view is blocked: the "OcclusionDetectionEvent" document, and in the node form the
/// "OcclusionDetectionEventList" of several.
///
/// In the document form a missing attribute or child leaves its field, and actions are added to those that the record
/// has. In the node form what is missing is reset.
class OcclusionDetectionEventXml : public IDomainXml
{
public:
    OcclusionDetectionEventXml();
    ~OcclusionDetectionEventXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setOcclusionDetectionEvent(const OcclusionDetectionEvent& event) { event_ = event; }
    OcclusionDetectionEvent& getOcclusionDetectionEvent() { return event_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const OcclusionDetectionEvent& event);
    static bool readElement(const TiXmlElement& element, OcclusionDetectionEvent& event);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const std::vector<OcclusionDetectionEvent>& events,
                             SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<OcclusionDetectionEvent>& events) const;
    bool createXmlString(const std::vector<OcclusionDetectionEvent>& events, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<OcclusionDetectionEvent>& events) const;
    /// @}

private:
    OcclusionDetectionEvent event_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
