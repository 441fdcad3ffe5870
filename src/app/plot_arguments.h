#pragma once

#include "app/form_params.h"
#include "plot/viewport.h"

/// The plot window's view in FormParams.
namespace zel {

/// The view under "xi", "xf", "yi", "yf", "definicion" and "mantener_prop". A value that is missing
/// or is no number reads as 0, and the flag as false.
ViewSettings viewIn(const FormParams& params);

/// Empties FormParams and adds the view, without "mantener_prop", and "llamador", the sender.
void handViewOver(FormParams& params, const ViewSettings& view, FormWindow* sender);

/// The same with "imprimir" before "llamador", both the plot window: for the print window.
void handPlotOver(FormParams& params, const ViewSettings& view, FormWindow* plot);

}  // namespace zel
