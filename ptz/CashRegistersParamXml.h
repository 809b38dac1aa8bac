#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/PtzRecords.h"

#include <string>
#include <tinyxml.h>

/// A cash register that writes its receipts over pictures: the "CashRegistersParam" document.
///
/// The document form leaves what is missing; cameras are added to those that the record has, except those without a
/// number. The node form resets what is missing, replaces the cameras, 0 for one without a number, and leaves the
/// model, which it does not carry; for a missing child it prints a line.
class CashRegistersParamXml : public IDomainXml
{
public:
    CashRegistersParamXml();
    ~CashRegistersParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setCashRegistersParam(const CashRegistersParam& param) { param_ = param; }
    CashRegistersParam& getCashRegistersParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const CashRegistersParam& param);
    static bool readElement(const TiXmlElement& element, CashRegistersParam& param);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const CashRegistersParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CashRegistersParam& param) const;
    bool createXmlString(const CashRegistersParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, CashRegistersParam& param) const;
    /// @}

private:
    CashRegistersParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
