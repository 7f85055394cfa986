#include "TFormRefChannel.h"

#include "LearningLists.h"

TFormRefChannel::TFormRefChannel(QWidget *parent)
    : ListDialog(std::make_unique<RefChannelModel>(), QStringLiteral("TFormRefChannel"), parent)
{}
