#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// A rectangle in which a detector watches: the "DetectionArea" document, and in the node form the "DetectionAreaList"
/// of several.
///
/// A missing attribute resets its field, in both forms.
class DetectionAreaXml : public IDomainXml
{
public:
    DetectionAreaXml();
    ~DetectionAreaXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDetectionArea(const DetectionArea& area) { area_ = area; }
    DetectionArea& getDetectionArea() { return area_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DetectionArea& area);
    static bool readElement(const TiXmlElement& element, DetectionArea& area);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const std::vector<DetectionArea>& areas, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<DetectionArea>& areas) const;
    bool createXmlString(const std::vector<DetectionArea>& areas, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<DetectionArea>& areas) const;
    /// @}

private:
    DetectionArea area_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
