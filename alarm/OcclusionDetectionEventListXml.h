#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// What a device does when its cameras' views are blocked: the "OcclusionDetectionEventList" document. The node form of
/// such a list is that of OcclusionDetectionEventXml.
///
/// The reader appends to the list; a failed item ends it with false.
class OcclusionDetectionEventListXml : public IDomainXml
{
public:
    OcclusionDetectionEventListXml();
    ~OcclusionDetectionEventListXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setOcclusionDetectionEvent(const std::vector<OcclusionDetectionEvent>& events) { events_ = events; }
    std::vector<OcclusionDetectionEvent>& getOcclusionDetectionEvent() { return events_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<OcclusionDetectionEvent>& events);
    static bool readElement(const TiXmlElement& element, std::vector<OcclusionDetectionEvent>& events);
    /// @}

private:
    std::vector<OcclusionDetectionEvent> events_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
