## picture = vellox.figure ()
## picture = vellox.figure (handle)
##
## A picture of a figure, the current one without a handle, as large as on the screen. It goes where a figure's handle would
## be taken for a number:
##
##     slide.fill ("Content", vellox.figure (gcf));
function picture = figure (handle = gcf ())
  picture = __vellox_figure__ (handle, 0, 0);
endfunction
