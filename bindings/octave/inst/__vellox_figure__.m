## picture = __vellox_figure__ (figure, width, height)
##
## A picture of a figure, for a box of so many inches; as large as on the screen where these are 0.
function picture = __vellox_figure__ (figure, width, height)
  dots_per_inch = 150;
  pixels = [width, height] * dots_per_inch;
  if (! all (pixels > 0))
    pixels = get (figure, "position")(3:4);
  endif
  file = [tempname(), ".png"];
  unwind_protect
    print (figure, file, "-dpng", sprintf ("-S%d,%d", round (pixels)));
    stream = fopen (file, "r");
    bytes = fread (stream, Inf, "*uint8")';
    fclose (stream);
  unwind_protect_cleanup
    unlink (file);
  end_unwind_protect
  picture = vellox.ppt.Picture (bytes);
endfunction
