#include "tests/suite/Codecs.h"

#include "security/DeviceSecurityParamXml.h"
#include "security/LogInfoExXml.h"
#include "security/LogInfoXml.h"
#include "security/LogRequestParamExXml.h"
#include "security/LogRequestParamXml.h"
#include "security/NetworkPrivilegeInfoXml.h"
#include "security/PrivilegeGroupXml.h"
#include "security/PrivilegeUserXml.h"
#include "security/PrivilegeXml.h"
#include "security/SecurityParamXml.h"
#include "security/SystemUserParamXml.h"
#include "security/UserXml.h"
#include "security/ZT_PrivilegeUserXml.h"
#include "tests/suite/Rewrite.h"

namespace
{

/// A list whose parent is the caller's.
bool rewritePrivilegeList(const std::string& text, std::string& rewritten)
{
    SafePointer<DomainXmlNode> parsed;
    std::vector<Privilege> privileges;
    if (!DomainXmlNode::parse(text, "PrivilegeList", parsed)) return false;
    if (!PrivilegeXml().parseDomainXmlNode(parsed, privileges)) return false;
    SafePointer<DomainXmlNode> list(new DomainXmlNode("PrivilegeList"));
    return PrivilegeXml().createDomainXmlNode(privileges, list) && DomainXmlNode::toString(list, rewritten);
}

} // namespace

std::vector<CodecCase> securityCodecs()
{
    return {
        // clang-format off
        {"security", "DeviceSecurityParamXml", "document", rewriteDocument<DeviceSecurityParamXml>},
        {"security", "LogInfoExXml", "document", rewriteDocument<LogInfoExXml>},
        {"security", "LogInfoXml", "document", rewriteDocument<LogInfoXml>},
        {"security", "LogRequestParamExXml", "document", rewriteDocument<LogRequestParamExXml>},
        {"security", "LogRequestParamXml", "document", rewriteDocument<LogRequestParamXml>},
        {"security", "NetworkPrivilegeInfoXml", "node", rewriteText<NetworkPrivilegeInfoXml, NetworkPrivilegeInfo>},
        {"security", "NetworkPrivilegeInfoXml", "list", rewriteText<NetworkPrivilegeInfoXml, std::vector<NetworkPrivilegeInfo>>},
        {"security", "PrivilegeGroupXml", "node", rewriteText<PrivilegeGroupXml, PrivilegeGroup>},
        {"security", "PrivilegeGroupXml", "list", rewriteText<PrivilegeGroupXml, std::vector<PrivilegeGroup>>},
        {"security", "PrivilegeUserXml", "document", rewriteDocument<PrivilegeUserXml>},
        {"security", "PrivilegeUserXml", "node", rewriteText<PrivilegeUserXml, PrivilegeUser>},
        {"security", "PrivilegeUserXml", "list", rewriteText<PrivilegeUserXml, std::vector<PrivilegeUser>>},
        {"security", "PrivilegeXml", "node", rewriteText<PrivilegeXml, Privilege>},
        {"security", "PrivilegeXml", "list", rewritePrivilegeList},
        {"security", "SecurityParamXml", "node", rewriteText<SecurityParamXml, SecurityParam>},
        {"security", "SystemUserParamXml", "node", rewriteText<SystemUserParamXml, SystemUserParam>},
        {"security", "UserXml", "document", rewriteDocument<UserXml>},
        {"security", "ZT_PrivilegeUserXml", "document", rewriteDocument<ZT_PrivilegeUserXml>},
        {"security", "ZT_PrivilegeUserXml", "node", rewriteText<ZT_PrivilegeUserXml, ZT_PrivilegeUser>},
        {"security", "ZT_PrivilegeUserXml", "list", rewriteText<ZT_PrivilegeUserXml, std::vector<ZT_PrivilegeUser>>},
        // clang-format on
    };
}
