#pragma once

#include <QIconEnginePlugin>

/// Lets QIcon take the program's pictures by their ending: QIcon(":/iconos/abrir.pic"), sharp at any size and scale.
class IconoTrazos : public QIconEnginePlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QIconEngineFactoryInterface_iid FILE "icono_trazos.json")

 public:
  QIconEngine* create(const QString& archivo) override;
};
