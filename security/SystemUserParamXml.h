#pragma once

#include "core/IDomainXml.h"
#include "domain/SecurityRecords.h"

#include <string>

/// The change of a password: the "SystemUserParam" document.
///
/// Without one of its properties a text is refused, and the record stays.
class SystemUserParamXml : public IDomainXml
{
public:
    SystemUserParamXml();
    ~SystemUserParamXml() override;

    bool createXmlString(const SystemUserParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, SystemUserParam& param) const;
};
