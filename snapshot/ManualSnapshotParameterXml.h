#pragma once

#include "core/IDomainXml.h"
#include "domain/SnapshotRecords.h"

#include <string>
#include <tinyxml.h>

/// Asks a device to take pictures of a camera now: the "ManualSnapshotParameter" document.
///
/// A missing "CameraId" gives 0; a missing parameter is left.
class ManualSnapshotParameterXml : public IDomainXml
{
public:
    ManualSnapshotParameterXml();
    ~ManualSnapshotParameterXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setManualSnapshotParameter(const ManualSnapshotParameter& parameter) { parameter_ = parameter; }
    ManualSnapshotParameter& getManualSnapshotParameter() { return parameter_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ManualSnapshotParameter& parameter);
    static bool readElement(const TiXmlElement& element, ManualSnapshotParameter& parameter);
    /// @}

private:
    ManualSnapshotParameter parameter_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
