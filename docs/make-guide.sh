#!/bin/bash
# Converts the administrator's guide to one HTML page that needs no other file. Usage: make-guide.sh VERSION PAGE
set -euo pipefail
version=$1
page=$(realpath -m "$2")
cd "$(dirname "${BASH_SOURCE[0]}")"

# Embeds the pictures of a page as data URIs. Expects at most one picture on a line.
embed_pictures() {
  local line picture
  while IFS= read -r line; do
    if [[ $line =~ ^(.*src=\")([^\"]+\.png)(\".*)$ ]]; then
      picture=$(base64 -w 0 "${BASH_REMATCH[2]}") || return
      printf '%sdata:image/png;base64,%s%s\n' "${BASH_REMATCH[1]}" "$picture" "${BASH_REMATCH[3]}"
    else
      printf '%s\n' "$line"
    fi
  done
}

# Gives every chapter's title an id for links, and lists the chapters below the page's title.
add_contents() {
  awk '
    match($0, /^<h2>/) {
      title = substr($0, 5, length($0) - 9)
      name = tolower(title)
      gsub(/[^a-z0-9]+/, "-", name)
      contents = contents "<li><a href=\"#" name "\">" title "</a></li>\n"
      $0 = "<h2 id=\"" name "\">" title "</h2>"
    }
    /^<h1>/ { head = $0; next }
    { body = body $0 "\n" }
    END { printf "%s\n<ul class=\"contents\">\n%s</ul>\n%s", head, contents, body }'
}

mkdir -p "$(dirname "$page")"
{
  cat guide-head.html
  sed "s/@VERSION@/$version/g" administrator.md | cmark-gfm --extension table | add_contents | embed_pictures
  printf '</body>\n</html>\n'
} >"$page.new"
mv "$page.new" "$page"
