## picture = __vellox_figure__ (figure, width, height)
##
## A picture of a figure, for a box of so many inches; as large as on the screen where these are 0. Without arguments, the
## files of all such pictures go.
function picture = __vellox_figure__ (figure, width, height)
  persistent files = {};
  if (nargin == 0)
    cellfun (@unlink, files, "UniformOutput", false);
    files = {};
    return;
  endif
  dots_per_inch = 150;
  pixels = [width, height] * dots_per_inch;
  if (! all (pixels > 0))
    pixels = get (figure, "position")(3:4);
  endif
  files{end+1} = [tempname(), ".png"];
  print (figure, files{end}, "-dpng", sprintf ("-S%d,%d", round (pixels)));
  picture = vellox.ppt.Picture (files{end});
endfunction
