#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Announces data for an RS-485 port: the "RS485DataCommand" document.
///
/// A missing attribute leaves its field.
class RS485DataXml : public IDomainXml
{
public:
    RS485DataXml();
    ~RS485DataXml() override;

    /// The length of the data in bytes.
    int getDataLen() const { return dataLen_; }
    void setDataLen(int dataLen) { dataLen_ = dataLen; }

    /// The kind of data, as the device numbers it.
    int getType() const { return type_; }
    void setType(int type) { type_ = type; }

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }
    /// @}

private:
    int dataLen_ = 0;
    int type_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
