#pragma once

#include "app/services/MyModel.h"

#include <QPointer>

/** Holds one MyModel. */
class MyObjectControler : public QObject
{
    Q_OBJECT
    Q_PROPERTY(MyModel *myModelObj READ myModelObj WRITE setMyModelObj)

public:
    MyModel *myModelObj() const { return m_myModelObj; }
    void setMyModelObj(MyModel *model) { m_myModelObj = model; }

private:
    QPointer<MyModel> m_myModelObj;
};
