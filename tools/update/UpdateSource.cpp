#include "UpdateSource.h"

#include "SignatureCheck.h"

QByteArray UpdateSource::compiledInKey()
{
    const QByteArray key = QByteArray::fromBase64(TOOLVANE_UPDATE_KEY);
    return key.size() == SignatureCheck::keySize ? key : QByteArray();
}
