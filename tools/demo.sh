#!/usr/bin/env bash
# The tour behind `make demo`: writes the sample content and shows what the tool can do so far.
set -eu  # no pipefail: tour steps cut long output short with head
lumora=${1:-build/lumora}
dir=${2:-demo-content}
export lumora dir

# Shows a command as a person would type it, then runs it.
step() {
  printf '\n\033[1m== %s\033[0m\n$ %s\n' "$1" "$2"
  eval "${2//lumora /\"\$lumora\" }"
}

rm -rf "$dir" "$dir-rebuilt" "$dir-logs" "$dir-export" "$dir-broken"
step "Version" 'lumora --version'
step "Write a sample content root" 'lumora sample $dir'
step "Its configuration" 'cat $dir/Content.ini'
step "Every configured discipline (9 has Type 1: listed, never opened)" 'lumora disciplines $dir'
step "What opening registers for discipline 1 (it holds every exercise type)" 'lumora open $dir --filter 1'
step "Discipline 1's type-40 index: resource numbers by group key" 'lumora index $dir -d 1 --type 40'
step "Its descriptions (type 2000)" 'lumora index $dir -d 1 --type 2000 | head -16'
step "A type-40 resource (its .arh twin wins), references expanded, media as web paths" \
  'lumora resource $dir -d 1 --type 40 --id 0x100001 | head -40'
step "The same resource's media as network paths, Q3 tried first" \
  'lumora resource $dir -d 1 --type 40 --id 0x100001 --path-kind unc --order 3 | grep -o "[^ ]*lumora-server[^] ]*" | sort -u'
step "One medium" 'lumora media $dir -d 1 --kind 2 --folder 1005 --resource 0x100001 --path-kind url'
step "Its file is a small Flash movie (header FWS, version 6): a coloured card and disc; sounds are short tones" \
  'od -An -c -N4 $dir/D001/C0001/r0001005/Q1/p0000001.swf; wc -c $dir/D001/C0001/r0001005/Q1/p0000001.swf $dir/D001/C0001/r0001005/Q2/s0000002.swf'
step "Discipline 1 also holds every other exercise type: a video (type 1003) and its script" \
  'lumora resource $dir -d 1 --type 1003 --id 0x100001 | head -24'
step "Video Questions (type 8): its head links to video 1, one question per paragraph of it" \
  'lumora resource $dir -d 1 --type 8 --id 0x100001 | head -24'
step "A dictation (type 5): sentences with the URLs of their sounds" \
  'lumora resource $dir -d 1 --type 5 --id 0x100001 | head -24'
step "PatchWork (type 20): pictures with their words" \
  'lumora resource $dir -d 1 --type 20 --id 0x100002 | head -20'
step "The index of type 5, one of the types whose index also keeps a usage value per resource" \
  'lumora index $dir -d 1 --type 5'
step "Its file: the groups, then the usage table (numbers 1 and 2, each 0x0100: both have sentences)" \
  'od -An -tx1 $dir/D001/r0000005.ari'
step "Verify discipline 1's media and links: problems are planted on purpose (type 8 #3 asks about paragraph 9 of a three-paragraph video, type 19 #3 has a position without its word, type 1006 #3 and one element per unit name pictures never delivered)" \
  'lumora verify $dir -d 1 || true'
step "Check the whole root: every file read as the library reads it; only the planted media problems come up" \
  'lumora check $dir || true'
step "Cut a resource file short in a copy of the root: the check says at which byte it ends" \
  'cp -r $dir $dir-broken; head -c 30 $dir/D001/C0001/r0000005/r0000001.ars > $dir-broken/D001/C0001/r0000005/r0000001.ars; lumora check $dir-broken -d 1 --checks resources || true; lumora resource $dir-broken -d 1 --type 5 --id 0x100001 || true; rm -rf $dir-broken'
step "Rebuild the type-7 index from its resource files into a scratch folder" \
  'lumora rebuild-index $dir -d 1 --type 7 --out $dir-rebuilt'
step "Discipline 1's grammar: one point with its titles, pictures, subpoints, keywords and bubbles" \
  'lumora grammar $dir -d 1 point 2'
step "Typed without accents, a search still finds «l'été», «éteindre» and «la tête»" \
  'lumora glossary $dir -d 1 find ete'
step "Typed with them, the same words" 'lumora glossary $dir -d 1 find été'
step "One glossary word: its texts, translations, sound and links, sound path as a web path" \
  'lumora glossary $dir -d 1 word 1 --path-kind url | head -20'
step "Discipline 1's letter sections: «l'âme» files under A, «l'œuf» under the low byte of «œ»" \
  'lumora glossary $dir -d 1 letters'
step "Discipline 3 is English: «the», «to» and «(to)» do not count in its order" \
  'lumora glossary $dir -d 3 by-letter --letter 8 | head -12'
step "Rebuild discipline 2's order and letters from its written forms and save them" \
  'lumora glossary $dir -d 2 resort --write | head -8'
step "The three saved tables still agree with their checksums" \
  'lumora check-sets $dir/D002/C0000/r0001001 | grep -E "FNs|FNSorted|FNLetter"'
step "One read-only table stops the save before anything is written, and says why" \
  'chmod a-w $dir/D002/C0000/r0001001/t_Glo_FNLetter.set
   lumora glossary $dir -d 2 resort --write > /dev/null || echo "exit code $?"
   chmod u+w $dir/D002/C0000/r0001001/t_Glo_FNLetter.set'
step "Discipline 1's packages: version, generation date and a title per language (Content.mdb)" \
  'lumora packages $dir -d 1'
step "The resources of packages 1 and 3" 'lumora packages $dir -d 1 --resources 1,3'
step "Export packages 1 and 4 of discipline 1: resources, media, indexes, a partial glossary and grammar" \
  'lumora export $dir -d 1 --packages 1,4 --to $dir-export --progress'
step "The exported tree: a content root of its own" \
  'cat $dir-export/Content.ini; (cd $dir-export && find . -type f | sed "s|/[^/]*$||" | sort | uniq -c | sort -rn | head -12)'
step "Type-40 exercise 400001 of course 0 got its published .arh beside the .ars" \
  'ls $dir-export/D001/C0000/r0000040'
step "Opened again, the export lists its two packages" \
  'lumora open $dir-export | head -6; lumora packages $dir-export -d 1'
step "Its partial glossary holds only the words lesson 10001 names" \
  'lumora glossary $dir-export -d 1 letters | head -6'
step "Discipline 1's diagnosis data for user 3: the lessons and exercises its loads found" \
  'lumora diagnosis $dir -d 1 --user 3 | head -20'
step "The internal log, installed for one command: an unreadable Content.ini is report 541" \
  'lumora --log-folder $dir-logs disciplines $dir-missing || cat $dir-logs/*.log'
step "What a context code names" 'lumora label 0xA4020500'
step "Where discipline 2 keeps its index files" 'lumora path-info $dir -d 2'
step "The language table (first rows)" 'lumora languages | head -8'
step "Checksums as CRCFile.ini stores them" 'lumora crc $dir/Content.ini --json'
step "The classification the glossaries refer to; grammatical categories carry a label per language" \
  'lumora classification $dir | head -24'
step "Its set files: version, record count and checksum against CRCFile.ini" \
  'lumora check-sets $dir/Classes'
step "Code page 1251 bytes decoded to UTF-8" "printf '\\xcf\\xf0\\xe8\\xe2\\xe5\\xf2\\n' | lumora codepage decode 1251"
step "And back to code page 1251" "printf 'Привет\\n' | lumora codepage encode 1251 | od -An -tx1"
