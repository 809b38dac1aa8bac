#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// Where a device gets new software: the "UpdateParam" document.
///
/// A missing attribute resets its field.
class UpdateParamXml : public IDomainXml
{
public:
    UpdateParamXml();
    ~UpdateParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setUpdateParam(const UpdateParam& param) { param_ = param; }
    UpdateParam& getUpdateParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const UpdateParam& param);
    static bool readElement(const TiXmlElement& element, UpdateParam& param);
    /// @}

private:
    UpdateParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
