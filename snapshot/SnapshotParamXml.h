#pragma once

#include "core/IDomainXml.h"
#include "domain/SnapshotRecords.h"

#include <string>
#include <tinyxml.h>

/// How a camera takes single pictures: the "SnapshotParam" document.
///
/// A missing attribute resets its field.
class SnapshotParamXml : public IDomainXml
{
public:
    SnapshotParamXml();
    ~SnapshotParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setSnapshotParam(const SnapshotParam& param) { param_ = param; }
    SnapshotParam& getSnapshotParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const SnapshotParam& param);
    static bool readElement(const TiXmlElement& element, SnapshotParam& param);
    /// @}

private:
    SnapshotParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
