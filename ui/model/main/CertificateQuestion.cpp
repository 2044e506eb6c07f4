#include "ui/model/main/CertificateQuestion.h"

#include "publish/ServerList.h"

namespace vantorium::ui {

bool CertificateQuestion::Accepts(const std::string& host, const publish::ServerCertificate& certificate) {
  const std::string question = "The certificate of the server \"" + host +
                               "\" cannot be verified: " + certificate.doubt + ".\r\r" +
                               publish::DescriptionOf(certificate) +
                               "\r\rCompare the fingerprint with what your provider tells you.  Do you want to trust "
                               "this server from now on?";
  if (!boxes_.AskYesNo("Unknown Certificate", question)) return false;
  publish::ServerList servers(serverListFile_, boxes_);
  servers.Open();
  servers.RememberCertificate(host, certificate.fingerprint);
  return true;
}

}  // namespace vantorium::ui
