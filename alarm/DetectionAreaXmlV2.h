#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// A picture cut into cells, with the map of those in which a detector watches: the "DetectionAreaV2" document.
///
/// A missing attribute resets its field, in both forms. The map travels as Base64 in "Data", with its number of bytes
/// in "DataLength": without either of the two it is empty, and so it is where "Data" is not Base64. Of a map that has
/// fewer bytes than "DataLength" says all are taken.
class DetectionAreaXmlV2 : public IDomainXml
{
public:
    DetectionAreaXmlV2();
    ~DetectionAreaXmlV2() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDetectionAreaV2(const DetectionAreaV2& area) { area_ = area; }
    DetectionAreaV2& getDetectionAreaV2() { return area_; }
    /// The same, by the name that they have inside the analysis rules.
    /// @{
    void setDetectionArea(const DetectionAreaV2& area) { area_ = area; }
    DetectionAreaV2& getDetectionArea() { return area_; }
    /// @}
    /// @return 0, or the number of the failure that kept the map from being written: -4 for one that is too large.
    int createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    /// @return As `createXmlNode`; after a failure nothing is appended.
    static int writeElement(TiXmlNode& parent, const DetectionAreaV2& area);
    static bool readElement(const TiXmlElement& element, DetectionAreaV2& area);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const DetectionAreaV2& area, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DetectionAreaV2& area) const;
    bool createXmlString(const DetectionAreaV2& area, std::string& text) const;
    bool parseXmlString(const std::string& text, DetectionAreaV2& area) const;
    /// @}

private:
    DetectionAreaV2 area_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
