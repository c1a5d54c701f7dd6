<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Alerts</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>No duplicates found.</source>
        <translation>重複は見つかりませんでした。</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Can&apos;t open the library.</source>
        <translation>ライブラリを開けません。</translation>
    </message>
    <message>
        <source>Can&apos;t write the library.</source>
        <translation>ライブラリに書き込めません。</translation>
    </message>
    <message>
        <source>Can&apos;t export the results.</source>
        <translation>結果を書き出せません。</translation>
    </message>
    <message>
        <source>Look for the files there?</source>
        <translation>この場所でファイルを探しますか?</translation>
    </message>
    <message>
        <source>The file that was tried is there.</source>
        <translation>確かめたファイルはここにあります。</translation>
    </message>
    <message>
        <source>%L1 of %L2 files that were tried are there.</source>
        <translation>確かめた %L2 個のファイルのうち %L1 個がここにあります。</translation>
    </message>
    <message>
        <source>In the library: %1
Here: %2

%3</source>
        <translation>ライブラリでの場所: %1
ここでの場所: %2

%3</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Search again</source>
        <translation>もう一度検索(&amp;S)</translation>
    </message>
    <message>
        <source>None of the files were found there.</source>
        <translation>ここにはどのファイルも見つかりませんでした。</translation>
    </message>
    <message>
        <source>Choose the folder that holds the artists&apos; folders.</source>
        <translation>アーティストのフォルダが入っているフォルダを選んでください。</translation>
    </message>
    <message>
        <source>Open another library?</source>
        <translation>別のライブラリを開きますか?</translation>
    </message>
    <message numerus="yes">
        <source>The %1 marks in these results are lost then.</source>
        <comment>The mark in these results is lost then.</comment>
        <translation>
            <numerusform>この結果に付けた %1 個のマークは失われます。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>The library is as it was before.</source>
        <translation>ライブラリは元のままです。</translation>
    </message>
    <message>
        <source>Nothing was deleted.</source>
        <translation>何も削除されていません。</translation>
    </message>
    <message>
        <source>Tracks that the library still has keep their files.</source>
        <translation>ライブラリに残っているトラックのファイルはそのまま残ります。</translation>
    </message>
</context>
<context>
    <name>CellTexts</name>
    <message>
        <source>Not rated</source>
        <translation>評価なし</translation>
    </message>
    <message>
        <source>Rating: %1 of 5 stars</source>
        <translation>評価: 星 5 つ中 %1 つ</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>マーク済み</translation>
    </message>
    <message>
        <source>Not marked</source>
        <translation>マークなし</translation>
    </message>
    <message>
        <source>File missing</source>
        <translation>ファイルなし</translation>
    </message>
    <message>
        <source>File present</source>
        <translation>ファイルあり</translation>
    </message>
    <message>
        <source>Group %1 of %2, copy %3 of %4</source>
        <translation>グループ %1 / %2、コピー %3 / %4</translation>
    </message>
</context>
<context>
    <name>CleanupTable</name>
    <message>
        <source>cancelled</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>restored</source>
        <translation>復元済み</translation>
    </message>
    <message>
        <source>backup missing</source>
        <translation>バックアップなし</translation>
    </message>
    <message>
        <source>not ended</source>
        <translation>未完了</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>トラック</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message numerus="yes">
        <source>%1 clean-ups</source>
        <comment>1 clean-up</comment>
        <translation>
            <numerusform>整理 %1 件</numerusform>
        </translation>
    </message>
    <message>
        <source>complete</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Marked for deletion</source>
        <translation>削除用のマーク</translation>
    </message>
    <message>
        <source>File missing</source>
        <translation>ファイルなし</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>アーティスト</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>アルバム</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>ビットレート</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>評価</translation>
    </message>
    <message>
        <source>Plays</source>
        <translation>再生数</translation>
    </message>
    <message>
        <source>Date added</source>
        <translation>追加日</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音</translation>
    </message>
    <message>
        <source>Whether copies are the same recording</source>
        <translation>コピー同士が同じ録音かどうか</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>same</source>
        <translation>同じ</translation>
    </message>
    <message>
        <source>differs</source>
        <translation>異なる</translation>
    </message>
    <message>
        <source>unsure</source>
        <translation>不確か</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>読めない</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>no track of these groups is of the kind %1</source>
        <translation>これらのグループに種類が %1 のトラックはありません</translation>
    </message>
    <message>
        <source>no track of these groups is in %1</source>
        <translation>これらのグループに %1 にあるトラックはありません</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>No tracks are marked</source>
        <translation>マークしたトラックはありません</translation>
    </message>
    <message>
        <source>No track can be deleted</source>
        <translation>削除できるトラックはありません</translation>
    </message>
    <message numerus="yes">
        <source>Delete %1 tracks from the library?</source>
        <comment>Delete 1 track from the library?</comment>
        <translation>
            <numerusform>%1 個のトラックをライブラリから削除しますか?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %1 tracks from iTunes?</source>
        <comment>Delete 1 track from iTunes?</comment>
        <translation>
            <numerusform>%1 個のトラックを iTunes から削除しますか?</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing will be deleted.</source>
        <translation>何も削除されません。</translation>
    </message>
    <message numerus="yes">
        <source>They also leave every playlist.</source>
        <comment>It also leaves every playlist.</comment>
        <translation>
            <numerusform>すべてのプレイリストからも削除されます。</numerusform>
        </translation>
    </message>
    <message>
        <source>A copy of the library file is kept beside it.</source>
        <translation>ライブラリファイルのコピーを同じ場所に残します。</translation>
    </message>
    <message>
        <source>iTunes cannot undo this.</source>
        <translation>iTunes ではこの操作を取り消せません。</translation>
    </message>
    <message numerus="yes">
        <source>Their files go to the Trash.</source>
        <comment>Its file goes to the Trash.</comment>
        <translation>
            <numerusform>ファイルはゴミ箱に移動します。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move their &amp;files to the Trash too</source>
        <comment>Move its &amp;file to the Trash too</comment>
        <translation>
            <numerusform>ファイルもゴミ箱に移動する(&amp;F)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Delete %1 tracks</source>
        <comment>&amp;Delete 1 track</comment>
        <translation>
            <numerusform>%1 個のトラックを削除(&amp;D)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The files stay where they are.</source>
        <comment>The file stays where it is.</comment>
        <translation>
            <numerusform>ファイルは元の場所に残ります。</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking at the files...</source>
        <translation>ファイルを調べています...</translation>
    </message>
    <message numerus="yes">
        <source>The rest of the library could not be read, so the files stay.</source>
        <comment>The rest of the library could not be read, so the file stays.</comment>
        <translation>
            <numerusform>ライブラリの残りを読めなかったため、ファイルは残ります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files, %2, go to the Trash.</source>
        <comment>1 file, %2, goes to the Trash.</comment>
        <translation>
            <numerusform>%1 個のファイル (%2) をゴミ箱に移動します。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files are shared with tracks that stay, and are kept.</source>
        <comment>1 file is shared with a track that stays, and is kept.</comment>
        <translation>
            <numerusform>%1 個のファイルは残るトラックも使っているため、残します。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files are shared with tracks that stay, and go too.</source>
        <comment>1 file is shared with a track that stays, and goes too.</comment>
        <translation>
            <numerusform>%1 個のファイルは残るトラックも使っていますが、移動します。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files are missing already.</source>
        <comment>1 file is missing already.</comment>
        <translation>
            <numerusform>%1 個のファイルはすでにありません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files cannot go to the Trash, and are kept.</source>
        <comment>1 file cannot go to the Trash, and is kept.</comment>
        <translation>
            <numerusform>%1 個のファイルはゴミ箱に移動できないため、残します。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No copy of %1 songs will be left.</source>
        <comment>No copy of 1 song will be left.</comment>
        <translation>
            <numerusform>%1 曲はコピーが 1 つも残りません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 marked copies are the last of their recordings.</source>
        <comment>1 marked copy is the last of its recording.</comment>
        <translation>
            <numerusform>マークしたコピーのうち %1 個は、その録音の最後のコピーです。</numerusform>
        </translation>
    </message>
    <message>
        <source>The library cannot be written:
%1.</source>
        <translation>ライブラリに書き込めません:
%1</translation>
    </message>
    <message>
        <source>The library cannot be written.</source>
        <translation>ライブラリに書き込めません。</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks share their IDs with others, and stay.</source>
        <comment>1 track shares its ID with another one, and stays.</comment>
        <translation>
            <numerusform>%1 個のトラックは ID がほかと重なるため、残します。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DeleteCommand</name>
    <message numerus="yes">
        <source>no copy of %1 songs would be left; nothing was deleted (--allow-all-copies allows it)</source>
        <comment>no copy of 1 song would be left; nothing was deleted (--allow-all-copies allows it)</comment>
        <translation>
            <numerusform>%1 曲のコピーが 1 つも残らないため、何も削除しませんでした (--allow-all-copies で許可できます)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Deletion</name>
    <message>
        <source>Deleting...</source>
        <translation>削除中...</translation>
    </message>
    <message>
        <source>Merging...</source>
        <translation>まとめています...</translation>
    </message>
</context>
<context>
    <name>DeletionSummary</name>
    <message numerus="yes">
        <source>%1 tracks deleted</source>
        <comment>1 track deleted</comment>
        <translation>
            <numerusform>%1 個のトラックを削除しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 of %1 tracks deleted</source>
        <comment>%2 of 1 track deleted</comment>
        <translation>
            <numerusform>%1 個のうち %2 個のトラックを削除しました</numerusform>
        </translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>not attempted</source>
        <translation>未処理</translation>
    </message>
    <message>
        <source>file trashed</source>
        <translation>ファイルはゴミ箱へ</translation>
    </message>
    <message>
        <source>file missing</source>
        <translation>ファイルなし</translation>
    </message>
    <message>
        <source>file kept</source>
        <translation>ファイルを残しました</translation>
    </message>
    <message numerus="yes">
        <source>%1 files in the Trash</source>
        <comment>1 file in the Trash</comment>
        <translation>
            <numerusform>ゴミ箱へ移動 %1 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files kept</source>
        <comment>1 file kept</comment>
        <translation>
            <numerusform>残したファイル %1 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files missing already</source>
        <comment>1 file missing already</comment>
        <translation>
            <numerusform>すでにないファイル %1 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks could not be deleted</source>
        <comment>1 track could not be deleted</comment>
        <translation>
            <numerusform>削除できないトラック %1 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks not attempted</source>
        <comment>1 track not attempted</comment>
        <translation>
            <numerusform>未処理のトラック %1 個</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled: %1</source>
        <translation>中止: %1</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>停止: %1</translation>
    </message>
    <message>
        <source>It ended early: %1</source>
        <translation>途中で終わりました: %1</translation>
    </message>
</context>
<context>
    <name>Filter</name>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>マーク済み</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>ファイルなし</translation>
    </message>
    <message>
        <source>Losing every copy</source>
        <translation>コピーが残らない曲</translation>
    </message>
</context>
<context>
    <name>FinishCommand</name>
    <message>
        <source>no deletion was interrupted; restore --list shows all</source>
        <translation>中断された削除はありません。restore --list ですべて表示できます</translation>
    </message>
</context>
<context>
    <name>FolderReading</name>
    <message>
        <source>there is no music in this folder</source>
        <translation>このフォルダに音楽はありません</translation>
    </message>
    <message>
        <source>%1; its library is taken as it is</source>
        <translation>%1。ライブラリはそのまま使います</translation>
    </message>
</context>
<context>
    <name>InterruptedCleanup</name>
    <message numerus="yes">
        <source>%1 tracks</source>
        <comment>1 track</comment>
        <translation>
            <numerusform>%1 個のトラック</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <comment>1 file</comment>
        <translation>
            <numerusform>%1 個のファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1と%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 playlist files</source>
        <comment>1 playlist file</comment>
        <translation>
            <numerusform>%1 個のプレイリストファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>no file is left to go to the Trash</source>
        <translation>ゴミ箱に移動するファイルは残っていません</translation>
    </message>
    <message numerus="yes">
        <source>%1 files go to the Trash</source>
        <comment>1 file goes to the Trash</comment>
        <translation>
            <numerusform>%1 個のファイルをゴミ箱に移動します</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Keyboard</name>
    <message>
        <source>Space</source>
        <translation>スペース</translation>
    </message>
    <message>
        <source>Mark the selected rows, or unmark them where all are marked</source>
        <translation>選択した行をマークする。すべてマーク済みならマークを外す</translation>
    </message>
    <message>
        <source>Up, Down</source>
        <translation>上、下</translation>
    </message>
    <message>
        <source>The row before, the next row; with Shift more rows</source>
        <translation>前の行、次の行。Shift で複数の行</translation>
    </message>
    <message>
        <source>Home, End</source>
        <translation>Home、End</translation>
    </message>
    <message>
        <source>The first row, the last row</source>
        <translation>最初の行、最後の行</translation>
    </message>
    <message>
        <source>Ctrl+Up, Ctrl+Down</source>
        <translation>Ctrl+上、Ctrl+下</translation>
    </message>
    <message>
        <source>The first row of the group before, of the next group</source>
        <translation>前のグループ、次のグループの最初の行</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>In the filter: all rows again</source>
        <translation>フィルタ内: すべての行に戻す</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>The next track whose name begins so</source>
        <translation>その文字で始まる次のトラック</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>From control to control</source>
        <translation>次の項目へ移る</translation>
    </message>
    <message>
        <source>Cancel a search or a deletion, close a dialog</source>
        <translation>検索や削除を中止する、ダイアログを閉じる</translation>
    </message>
</context>
<context>
    <name>LibrarySession</name>
    <message>
        <source>the library has none</source>
        <translation>ライブラリにプレイリストはありません</translation>
    </message>
    <message>
        <source>the library has</source>
        <translation>ライブラリにあるもの:</translation>
    </message>
    <message>
        <source>the search ended without a result</source>
        <translation>検索は結果なしで終わりました</translation>
    </message>
    <message>
        <source>the search could not be limited to the playlist &apos;%1&apos;</source>
        <translation>検索をプレイリスト「%1」に限定できませんでした</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>警告: %1</translation>
    </message>
    <message>
        <source>there is no playlist &apos;%1&apos;; %2</source>
        <translation>プレイリスト「%1」はありません。%2</translation>
    </message>
</context>
<context>
    <name>LibraryWarnings</name>
    <message>
        <source>--map %1=%2 changes nothing, as no path of the library begins so</source>
        <translation>--map %1=%2 は何も変えません。この名前で始まるパスがライブラリにありません</translation>
    </message>
    <message>
        <source>--map %1=%2 changes nothing, as no path of the library begins so; its first is %3</source>
        <translation>--map %1=%2 は何も変えません。この名前で始まるパスがライブラリにありません (最初のパスは %3)</translation>
    </message>
    <message>
        <source>none of the library&apos;s files is here; if they came from another machine, --map FROM=TO tells where they are now (the first is %1)</source>
        <translation>ライブラリのファイルはここに 1 つもありません。別のコンピュータのものなら、--map 元=先 で今の場所を指定してください (最初のファイルは %1)</translation>
    </message>
    <message numerus="yes">
        <source>none of the library&apos;s files is here; --map &quot;%2=%3&quot; finds %4 of the %1 files that were tried (the first is %5)</source>
        <comment>none of the library&apos;s files is here; --map &quot;%2=%3&quot; finds %4 of the 1 file that were tried (the first is %5)</comment>
        <translation>
            <numerusform>ライブラリのファイルはここに 1 つもありません。--map &quot;%2=%3&quot; なら、確かめた %1 個のうち %4 個が見つかります (最初のファイルは %5)</numerusform>
        </translation>
    </message>
    <message>
        <source>warning: the restore of %1 was interrupted, and</source>
        <translation>警告: %1 の復元は中断されました。</translation>
    </message>
    <message>
        <source>warning: the deletion of %1 was interrupted, and</source>
        <translation>警告: %1 の削除は中断されました。</translation>
    </message>
    <message>
        <source>%1 can be put back: %2</source>
        <translation>%1を戻せます: %2</translation>
    </message>
    <message>
        <source>nothing of it is left to put back</source>
        <translation>戻せるものは残っていません</translation>
    </message>
    <message>
        <source>, or it can be finished (%1): %2</source>
        <translation>。または完了できます (%1): %2</translation>
    </message>
    <message>
        <source>; it can be finished (%1): %2</source>
        <translation>。完了できます (%1): %2</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%1 songs</source>
        <comment>1 song</comment>
        <translation>
            <numerusform>%1 曲</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks</source>
        <comment>1 track</comment>
        <translation>
            <numerusform>%1 個のトラック</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 playlists</source>
        <comment>1 playlist</comment>
        <translation>
            <numerusform>%1 個のプレイリスト</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MarkDialog</name>
    <message numerus="yes">
        <source>replaces %1 marks made by hand</source>
        <comment>replaces 1 mark made by hand</comment>
        <translation>
            <numerusform>手で付けた %1 個のマークを置き換えます</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MarkReason</name>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 バイト</translation>
    </message>
    <message>
        <source>no difference that the rule can see: %1 against %2</source>
        <translation>規則では違いがわかりません: %1 と %2</translation>
    </message>
    <message>
        <source>%1 as the kept copy: %2</source>
        <translation>残すコピーと%1: %2</translation>
    </message>
    <message>
        <source>%1 than the kept copy: %2 against %3</source>
        <translation>残すコピーより%1: %2 と %3</translation>
    </message>
    <message>
        <source>marked by hand</source>
        <translation>手でマーク</translation>
    </message>
    <message>
        <source>unmarked by hand</source>
        <translation>手でマークを解除</translation>
    </message>
    <message>
        <source>kept: no copy of its recording would be left</source>
        <translation>残す: この録音のコピーがなくなるため</translation>
    </message>
    <message>
        <source>lower bit rate</source>
        <translation>ビットレートが低い</translation>
    </message>
    <message>
        <source>same bit rate</source>
        <translation>ビットレートが同じ</translation>
    </message>
    <message>
        <source>higher bit rate</source>
        <translation>ビットレートが高い</translation>
    </message>
    <message>
        <source>shorter</source>
        <translation>短い</translation>
    </message>
    <message>
        <source>same time</source>
        <translation>時間が同じ</translation>
    </message>
    <message>
        <source>longer</source>
        <translation>長い</translation>
    </message>
    <message>
        <source>smaller</source>
        <translation>小さい</translation>
    </message>
    <message>
        <source>same size</source>
        <translation>サイズが同じ</translation>
    </message>
    <message>
        <source>larger</source>
        <translation>大きい</translation>
    </message>
    <message>
        <source>added later</source>
        <translation>追加が遅い</translation>
    </message>
    <message>
        <source>same date added</source>
        <translation>追加日が同じ</translation>
    </message>
    <message>
        <source>added earlier</source>
        <translation>追加が早い</translation>
    </message>
    <message>
        <source>no artwork</source>
        <translation>アートワークなし</translation>
    </message>
    <message>
        <source>another copy with artwork is kept</source>
        <translation>アートワークのある別のコピーを残す</translation>
    </message>
    <message>
        <source>has artwork</source>
        <translation>アートワークあり</translation>
    </message>
    <message>
        <source>another copy without artwork is kept</source>
        <translation>アートワークのない別のコピーを残す</translation>
    </message>
    <message>
        <source>lower rating</source>
        <translation>評価が低い</translation>
    </message>
    <message>
        <source>same rating</source>
        <translation>評価が同じ</translation>
    </message>
    <message>
        <source>higher rating</source>
        <translation>評価が高い</translation>
    </message>
    <message>
        <source>played less</source>
        <translation>再生回数が少ない</translation>
    </message>
    <message>
        <source>same play count</source>
        <translation>再生回数が同じ</translation>
    </message>
    <message>
        <source>played more</source>
        <translation>再生回数が多い</translation>
    </message>
    <message>
        <source>of the kind</source>
        <translation>種類:</translation>
    </message>
    <message>
        <source>another copy is kept</source>
        <translation>別のコピーを残す</translation>
    </message>
    <message>
        <source>in the folder</source>
        <translation>フォルダ:</translation>
    </message>
    <message>
        <source>kept: the rule has nothing against it</source>
        <translation>残す: 規則に当てはまらない</translation>
    </message>
    <message>
        <source>kept: one copy stays</source>
        <translation>残す: コピーを 1 つ残す</translation>
    </message>
    <message>
        <source>kept: the other copies go by the rule</source>
        <translation>残す: ほかのコピーが規則に当てはまる</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>残す</translation>
    </message>
    <message>
        <source>file missing</source>
        <translation>ファイルなし</translation>
    </message>
    <message>
        <source>kept: its sound could not be compared</source>
        <translation>残す: 音を比べられなかった</translation>
    </message>
    <message>
        <source>kept: perhaps another recording than the copy below</source>
        <translation>残す: 下のコピーとは別の録音かもしれない</translation>
    </message>
    <message>
        <source>kept: another recording than the copy below</source>
        <translation>残す: 下のコピーとは別の録音</translation>
    </message>
    <message>
        <source>kept: perhaps another recording than the copy above</source>
        <translation>残す: 上のコピーとは別の録音かもしれない</translation>
    </message>
    <message>
        <source>kept: another recording than the copy above</source>
        <translation>残す: 上のコピーとは別の録音</translation>
    </message>
</context>
<context>
    <name>MarkRule</name>
    <message>
        <source>Highest</source>
        <translation>最も高い</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>最も低い</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>最も長い</translation>
    </message>
    <message>
        <source>Shortest</source>
        <translation>最も短い</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>最も大きい</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>最も小さい</translation>
    </message>
    <message>
        <source>Earliest</source>
        <translation>最も早い</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>最も遅い</translation>
    </message>
    <message>
        <source>With artwork</source>
        <translation>アートワークあり</translation>
    </message>
    <message>
        <source>Without artwork</source>
        <translation>アートワークなし</translation>
    </message>
    <message>
        <source>Most played</source>
        <translation>再生回数が最も多い</translation>
    </message>
    <message>
        <source>Least played</source>
        <translation>再生回数が最も少ない</translation>
    </message>
</context>
<context>
    <name>Marks</name>
    <message>
        <source>Mark by rule</source>
        <translation>規則でマーク</translation>
    </message>
    <message>
        <source>Unmark all</source>
        <translation>すべてのマークを外す</translation>
    </message>
    <message>
        <source>Mark all</source>
        <translation>すべてマーク</translation>
    </message>
    <message>
        <source>Mark selected</source>
        <translation>選択項目をマーク</translation>
    </message>
    <message>
        <source>Unmark selected</source>
        <translation>選択項目のマークを外す</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>マーク</translation>
    </message>
    <message>
        <source>Unmark</source>
        <translation>マークを外す</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message numerus="yes">
        <source>%1 same</source>
        <comment>1 same</comment>
        <translation>
            <numerusform>同じ %1 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 different</source>
        <comment>1 different</comment>
        <translation>
            <numerusform>異なる %1 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 unsure</source>
        <comment>1 unsure</comment>
        <translation>
            <numerusform>不確か %1 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not readable</source>
        <comment>1 not readable</comment>
        <translation>
            <numerusform>読めない %1 個</numerusform>
        </translation>
    </message>
    <message>
        <source>The file was not found</source>
        <translation>ファイルが見つかりません</translation>
    </message>
    <message>
        <source>None of the %1 files were found</source>
        <translation>%1 個のファイルは 1 つも見つかりません</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of the %2 files were found</source>
        <comment>Only 1 of the %2 files was found</comment>
        <translation>
            <numerusform>%2 個のうち %1 個のファイルしか見つかりません</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The sound of %1 files was compared</source>
        <comment>The sound of 1 file was compared</comment>
        <translation>
            <numerusform>%1 個のファイルの音を比べました</numerusform>
        </translation>
    </message>
    <message>
        <source>The restore of %1 was interrupted</source>
        <translation>%1 の復元は中断されました</translation>
    </message>
    <message>
        <source>The deletion of %1 was interrupted</source>
        <translation>%1 の削除は中断されました</translation>
    </message>
    <message>
        <source>%1 can be put back.</source>
        <translation>%1を戻せます。</translation>
    </message>
    <message>
        <source>If you finish it, %1.</source>
        <translation>完了させる場合: %1。</translation>
    </message>
    <message>
        <source>Finishing the deletion</source>
        <translation>削除を完了しています</translation>
    </message>
    <message>
        <source>The deletion could not be finished</source>
        <translation>削除を完了できませんでした</translation>
    </message>
    <message>
        <source>No duplicates found</source>
        <translation>重複は見つかりませんでした</translation>
    </message>
    <message>
        <source>If they came from another machine, tell where they are now.</source>
        <translation>別のコンピュータのものなら、今の場所を指定してください。</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks were searched.</source>
        <comment>1 track was searched.</comment>
        <translation>
            <numerusform>%1 個のトラックを検索しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing of it is left to put back.</source>
        <translation>戻せるものは残っていません。</translation>
    </message>
</context>
<context>
    <name>OutcomeReport</name>
    <message>
        <source>Would delete %1 of %2 tracks</source>
        <translation>%2 個のうち %1 個のトラックを削除します</translation>
    </message>
    <message>
        <source>Deleted %1 of %2 tracks</source>
        <translation>%2 個のうち %1 個のトラックを削除しました</translation>
    </message>
    <message>
        <source>and move files of %1 to the Trash</source>
        <translation>%1 個のファイルをゴミ箱に移動します</translation>
    </message>
    <message>
        <source>files of %1 in the Trash</source>
        <translation>%1 個のファイルをゴミ箱に移動しました</translation>
    </message>
    <message>
        <source>%1 could not be dealt with as asked</source>
        <translation>%1 個は指定どおりに処理できません</translation>
    </message>
    <message>
        <source>%1 not dealt with as asked</source>
        <translation>%1 個は指定どおりに処理できませんでした</translation>
    </message>
    <message>
        <source>Note: %1</source>
        <translation>注意: %1</translation>
    </message>
    <message>
        <source>Backup: %1</source>
        <translation>バックアップ: %1</translation>
    </message>
    <message>
        <source>Record: %1</source>
        <translation>記録: %1</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 / %L2</translation>
    </message>
</context>
<context>
    <name>RestoreCommand</name>
    <message>
        <source>there is no clean-up &apos;%1&apos;; restore --list shows those that are there</source>
        <translation>整理「%1」はありません。restore --list で一覧を表示できます</translation>
    </message>
    <message>
        <source>there is no clean-up that could be restored; --list shows all</source>
        <translation>復元できる整理はありません。--list ですべて表示できます</translation>
    </message>
</context>
<context>
    <name>RestoreDialog</name>
    <message>
        <source>Nothing was deleted from this library by Songsweep, or the records of it are no longer beside the library.</source>
        <translation>Songsweep はこのライブラリから何も削除していないか、その記録がライブラリの横にもうありません。</translation>
    </message>
    <message>
        <source>The deletions cannot be listed: %1.</source>
        <translation>削除の一覧を表示できません: %1</translation>
    </message>
    <message>
        <source>Nothing can be restored: %1.</source>
        <translation>何も復元できません: %1</translation>
    </message>
</context>
<context>
    <name>RestoreOutput</name>
    <message>
        <source>Track %1 by %2 (%3) would be restored</source>
        <translation>トラック %1 (%2、%3) は復元されます</translation>
    </message>
    <message>
        <source>Track %1 by %2 (%3) was restored</source>
        <translation>トラック %1 (%2、%3) を復元しました</translation>
    </message>
    <message>
        <source>Track %1 by %2 (%3) is in the library already</source>
        <translation>トラック %1 (%2、%3) はすでにライブラリにあります</translation>
    </message>
    <message>
        <source>Track %1 by %2 (%3) cannot be restored</source>
        <translation>トラック %1 (%2、%3) は復元できません</translation>
    </message>
    <message>
        <source>Track %1 by %2 (%3) is left out</source>
        <translation>トラック %1 (%2、%3) は除外します</translation>
    </message>
    <message>
        <source>Track %1 by %2 (%3) was not attempted</source>
        <translation>トラック %1 (%2、%3) は処理していません</translation>
    </message>
    <message>
        <source>its file would be put back</source>
        <translation>ファイルは元に戻されます</translation>
    </message>
    <message>
        <source>its file was put back</source>
        <translation>ファイルを元に戻しました</translation>
    </message>
    <message>
        <source>its file is there already</source>
        <translation>ファイルはすでにあります</translation>
    </message>
    <message>
        <source>its file was not attempted</source>
        <translation>ファイルは処理していません</translation>
    </message>
    <message numerus="yes">
        <source>Would restore %2 of %1 tracks of &quot;%3&quot;</source>
        <comment>Would restore %2 of 1 track of &quot;%3&quot;</comment>
        <translation>
            <numerusform>「%3」の %1 個のうち %2 個のトラックを復元します</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %2 of %1 tracks of &quot;%3&quot;</source>
        <comment>Restored %2 of 1 track of &quot;%3&quot;</comment>
        <translation>
            <numerusform>「%3」の %1 個のうち %2 個のトラックを復元しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files put back</source>
        <comment>1 file put back</comment>
        <translation>
            <numerusform>ファイル %1 個を元に戻す</numerusform>
        </translation>
    </message>
    <message>
        <source>The library as it was before: %1</source>
        <translation>以前のライブラリ: %1</translation>
    </message>
    <message>
        <source>What was done: %1</source>
        <translation>行った内容: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks not dealt with as asked</source>
        <comment>1 track not dealt with as asked</comment>
        <translation>
            <numerusform>%1 個のトラックは指定どおりに処理できません</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 playlist files as they were</source>
        <comment>1 playlist file as it was</comment>
        <translation>
            <numerusform>元どおりのプレイリストファイル %1 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RestoreTexts</name>
    <message numerus="yes">
        <source>%1 tracks cannot come back.</source>
        <comment>1 track cannot come back.</comment>
        <translation>
            <numerusform>%1 個のトラックは戻せません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks are left out, since their files are lost.</source>
        <comment>1 track is left out, since its file is lost.</comment>
        <translation>
            <numerusform>%1 個のトラックはファイルが失われているため、除外します。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files are no longer in the Trash; their tracks are missing them.</source>
        <comment>1 file is no longer in the Trash; its track is missing it.</comment>
        <translation>
            <numerusform>%1 個のファイルはもうゴミ箱にありません。そのトラックにはファイルがなくなります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files stay in the Trash, since other files have their places.</source>
        <comment>1 file stays in the Trash, since another file has its place.</comment>
        <translation>
            <numerusform>%1 個のファイルは、元の場所に別のファイルがあるため、ゴミ箱に残ります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files stay in the Trash.</source>
        <comment>1 file stays in the Trash.</comment>
        <translation>
            <numerusform>%1 個のファイルはゴミ箱に残ります。</numerusform>
        </translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>復元済み</translation>
    </message>
    <message>
        <source>Backup missing</source>
        <translation>バックアップなし</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>track restored</source>
        <translation>トラックを復元</translation>
    </message>
    <message>
        <source>track there already</source>
        <translation>トラックはすでにあります</translation>
    </message>
    <message>
        <source>track not restored</source>
        <translation>トラックを復元できません</translation>
    </message>
    <message>
        <source>track not attempted</source>
        <translation>トラックは未処理</translation>
    </message>
    <message>
        <source>track left out</source>
        <translation>トラックを除外</translation>
    </message>
    <message>
        <source>file put back</source>
        <translation>ファイルを元に戻しました</translation>
    </message>
    <message>
        <source>file there already</source>
        <translation>ファイルはすでにあります</translation>
    </message>
    <message>
        <source>file lost</source>
        <translation>ファイルは失われました</translation>
    </message>
    <message>
        <source>file in the Trash</source>
        <translation>ファイルはゴミ箱にあります</translation>
    </message>
    <message>
        <source>file not attempted</source>
        <translation>ファイルは未処理</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks come back to the library and their playlists.</source>
        <comment>1 track comes back to the library and its playlists.</comment>
        <translation>
            <numerusform>%1 個のトラックがライブラリとプレイリストに戻ります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) come back from the Trash.</source>
        <comment>1 file (%2) comes back from the Trash.</comment>
        <translation>
            <numerusform>%1 個のファイル (%2) がゴミ箱から戻ります。</numerusform>
        </translation>
    </message>
    <message>
        <source>All of it is there already.</source>
        <translation>すべてすでにあります。</translation>
    </message>
    <message>
        <source>The restore did not come to its end: %1.</source>
        <translation>復元は最後まで終わりませんでした: %1</translation>
    </message>
    <message>
        <source>The restore was stopped; restore again to bring back the rest.</source>
        <translation>復元は中止されました。残りを戻すには、もう一度復元してください。</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks are back in the library.</source>
        <comment>1 track is back in the library.</comment>
        <translation>
            <numerusform>%1 個のトラックがライブラリに戻りました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) are back in their places.</source>
        <comment>1 file (%2) is back in its place.</comment>
        <translation>
            <numerusform>%1 個のファイル (%2) が元の場所に戻りました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks restored</source>
        <comment>1 track restored</comment>
        <translation>
            <numerusform>%1 個のトラックを復元しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) put back.</source>
        <comment>1 file (%2) put back.</comment>
        <translation>
            <numerusform>%1 個のファイル (%2) を元に戻しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>A new search shows it.</source>
        <translation>もう一度検索すると表示されます。</translation>
    </message>
    <message>
        <source>A new search shows them.</source>
        <translation>もう一度検索すると表示されます。</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks are not as before.</source>
        <comment>1 track is not as before.</comment>
        <translation>
            <numerusform>%1 個のトラックは以前と同じではありません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 playlist files get their lines back.</source>
        <comment>1 playlist file gets its lines back.</comment>
        <translation>
            <numerusform>%1 個のプレイリストファイルに行が戻ります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 playlist files have their lines back.</source>
        <comment>1 playlist file has its lines back.</comment>
        <translation>
            <numerusform>%1 個のプレイリストファイルに行が戻りました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScanCommand</name>
    <message>
        <source>%1; --verbose tells which, and why</source>
        <translation>%1。--verbose で名前と理由を表示できます</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks</source>
        <comment>1 track</comment>
        <translation>
            <numerusform>%1 個のトラック</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 new</source>
        <comment>1 new</comment>
        <translation>
            <numerusform>新規 %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 changed</source>
        <comment>1 changed</comment>
        <translation>
            <numerusform>変更 %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 moved</source>
        <comment>1 moved</comment>
        <translation>
            <numerusform>移動 %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 gone</source>
        <comment>1 gone</comment>
        <translation>
            <numerusform>消失 %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScanProgress</name>
    <message>
        <source>less than a minute left</source>
        <translation>残り 1 分未満</translation>
    </message>
    <message>
        <source>Reading %1 of %2 file…</source>
        <translation>%2 個中 %1 個目のファイルを読み込み中…</translation>
    </message>
    <message>
        <source>Reading %1 of %2 files…</source>
        <translation>%2 個中 %1 個目のファイルを読み込み中…</translation>
    </message>
    <message numerus="yes">
        <source>%1 files could not be read</source>
        <comment>1 file could not be read</comment>
        <translation>
            <numerusform>%1 個のファイルを読めませんでした</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %1 minutes left</source>
        <comment>about 1 minute left</comment>
        <translation>
            <numerusform>残り約 %1 分</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %1 hours left</source>
        <comment>about 1 hour left</comment>
        <translation>
            <numerusform>残り約 %1 時間</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>Can&apos;t access %1. If there is a dialog window (eg. update notification, song info, preferences) showing on %1, please close it first.</source>
        <translation>%1 にアクセスできません。%1 でダイアログ (アップデートの通知、曲の情報、環境設定など) が開いている場合は、先に閉じてください。</translation>
    </message>
    <message>
        <source>the whole library was searched, not “%1”</source>
        <translation>「%1」ではなくライブラリ全体を検索しました</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>検索中...</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>処理中...</translation>
    </message>
    <message>
        <source>Checking missing tracks...</source>
        <translation>見つからないトラックを確認中...</translation>
    </message>
</context>
<context>
    <name>SearchReport</name>
    <message>
        <source>%1 in %2</source>
        <translation>%1、%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 songs</source>
        <comment>1 song</comment>
        <translation>
            <numerusform>%1 曲</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 groups</source>
        <comment>1 group</comment>
        <translation>
            <numerusform>%1 グループ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files missing</source>
        <comment>1 file missing</comment>
        <translation>
            <numerusform>ファイルなし %1 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 marked</source>
        <comment>1 marked</comment>
        <translation>
            <numerusform>マーク %1 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SearchSummary</name>
    <message>
        <source>name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>artist</source>
        <translation>アーティスト</translation>
    </message>
    <message>
        <source>album</source>
        <translation>アルバム</translation>
    </message>
    <message>
        <source>time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Whole library, not “%1”</source>
        <translation>「%1」ではなくライブラリ全体</translation>
    </message>
    <message>
        <source>everything</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>same %1, with small differences</source>
        <translation>%1が同じ (小さな違いは無視)</translation>
    </message>
    <message>
        <source>same %1</source>
        <translation>%1が同じ</translation>
    </message>
</context>
<context>
    <name>SearchVerdict</name>
    <message>
        <source>%1 of %2 tracks were searched: %3</source>
        <translation>%2 個のうち %1 個のトラックを検索しました: %3</translation>
    </message>
    <message>
        <source>the library file has no playlist to choose</source>
        <translation>ライブラリファイルに選べるプレイリストがありません</translation>
    </message>
    <message>
        <source>the library has no name by which it is found in its file</source>
        <translation>ライブラリに、ファイル内で見つけるための名前がありません</translation>
    </message>
    <message>
        <source>the library file has no playlist named “%1”</source>
        <translation>ライブラリファイルに「%1」というプレイリストがありません</translation>
    </message>
    <message>
        <source>the library lists none</source>
        <translation>ライブラリに登録されたものがありません</translation>
    </message>
    <message>
        <source>none that the library lists is a file to be searched</source>
        <translation>ライブラリに登録されたものに検索できるファイルがありません</translation>
    </message>
    <message>
        <source>the playlist “%1” lists none</source>
        <translation>プレイリスト「%1」に登録されたものがありません</translation>
    </message>
    <message>
        <source>none that the playlist “%1” lists is a file to be searched</source>
        <translation>プレイリスト「%1」に登録されたものに検索できるファイルがありません</translation>
    </message>
    <message>
        <source>the search broke off: %1</source>
        <translation>検索が途中で終わりました: %1</translation>
    </message>
    <message>
        <source>the first playlist named “%1” in the library file is not the library</source>
        <translation>ライブラリファイルの最初の「%1」というプレイリストはライブラリではありません</translation>
    </message>
    <message numerus="yes">
        <source>the library&apos;s own playlist leaves out %1 tracks</source>
        <comment>the library&apos;s own playlist leaves out 1 track</comment>
        <translation>
            <numerusform>ライブラリ自身のプレイリストに %1 個のトラックがありません</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks could not be read: %2</source>
        <comment>1 track could not be read: %2</comment>
        <translation>
            <numerusform>%1 個のトラックを読めませんでした: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SmallDifference</name>
    <message>
        <source>name differs: %1</source>
        <translation>名前が異なる: %1</translation>
    </message>
    <message>
        <source>artist differs: %1</source>
        <translation>アーティストが異なる: %1</translation>
    </message>
    <message>
        <source>album differs: %1</source>
        <translation>アルバムが異なる: %1</translation>
    </message>
    <message>
        <source>without %1</source>
        <translation>%1 なし</translation>
    </message>
    <message>
        <source>%1, not %2</source>
        <translation>%2 ではなく %1</translation>
    </message>
    <message>
        <source>%1 s longer</source>
        <translation>%1 秒長い</translation>
    </message>
    <message>
        <source>%1 s shorter</source>
        <translation>%1 秒短い</translation>
    </message>
</context>
<context>
    <name>SoundActions</name>
    <message>
        <source>Comparing sounds...</source>
        <translation>音を比べています...</translation>
    </message>
</context>
<context>
    <name>SoundDialog</name>
    <message numerus="yes">
        <source>%1 copies</source>
        <comment>1 copy</comment>
        <translation>
            <numerusform>コピー %1 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SoundOption</name>
    <message>
        <source>Comparing sounds</source>
        <translation>音を比べています</translation>
    </message>
    <message>
        <source>sounds cannot be compared: there is no %1</source>
        <translation>音を比べられません: %1 がありません</translation>
    </message>
</context>
<context>
    <name>Status</name>
    <message numerus="yes">
        <source>%1 songs</source>
        <comment>%1 songs</comment>
        <translation>
            <numerusform>%1 曲</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 of %1 marked</source>
        <comment>%2 of %1 marked</comment>
        <translation>
            <numerusform>%1 個のうち %2 個をマーク</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Table</name>
    <message>
        <source>missing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>マーク済み</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>違い</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Differs</source>
        <translation>違い</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>マーク</translation>
    </message>
</context>
<context>
    <name>TimeLeft</name>
    <message numerus="yes">
        <source>about %1 minutes left</source>
        <comment>about 1 minute left</comment>
        <translation>
            <numerusform>残り約 %1 分</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %1 seconds left</source>
        <comment>about 1 second left</comment>
        <translation>
            <numerusform>残り約 %1 秒</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>songsweep::AboutDialog</name>
    <message>
        <source>About Songsweep</source>
        <translation>Songsweep について</translation>
    </message>
    <message>
        <source>Icon of Songsweep</source>
        <translation>Songsweep のアイコン</translation>
    </message>
    <message>
        <source>Songsweep</source>
        <translation>Songsweep</translation>
    </message>
    <message>
        <source>Finds the songs you have twice.</source>
        <translation>重複した曲を見つけます。</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>Web サイト(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Contact</source>
        <translation>お問い合わせ(&amp;C)</translation>
    </message>
</context>
<context>
    <name>songsweep::CopiesPanelView</name>
    <message>
        <source>Copies of the song</source>
        <translation>この曲のコピー</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>マーク済み</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>違い</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>Playlists</source>
        <translation>プレイリスト</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
</context>
<context>
    <name>songsweep::DeleteConfirmation</name>
    <message>
        <source>Delete tracks</source>
        <translation>トラックの削除</translation>
    </message>
    <message>
        <source>Delete 3 tracks from iTunes?</source>
        <translation>3 個のトラックを iTunes から削除しますか?</translation>
    </message>
    <message>
        <source>They also leave every playlist. iTunes cannot undo this.</source>
        <translation>すべてのプレイリストからも削除されます。iTunes ではこの操作を取り消せません。</translation>
    </message>
    <message>
        <source>Move their &amp;files to the Trash too</source>
        <translation>ファイルもゴミ箱に移動する(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>オプション(&amp;O)</translation>
    </message>
    <message>
        <source>Trash &amp;shared files too</source>
        <translation>共有しているファイルもゴミ箱に移動する(&amp;S)</translation>
    </message>
    <message>
        <source>No copy of 2 songs will be left.</source>
        <translation>2 曲はコピーが 1 つも残りません。</translation>
    </message>
    <message>
        <source>Sho&amp;w them</source>
        <translation>表示(&amp;W)</translation>
    </message>
    <message>
        <source>Show the songs of which no copy will be left</source>
        <translation>コピーが残らない曲を表示する</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Keep their &amp;places in playlists</source>
        <translation>プレイリスト内の位置を保つ(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Add their plays and ratings to the copy that stays</source>
        <translation>残るコピーに再生回数と評価を加える(&amp;A)</translation>
    </message>
    <message>
        <source>Fill &amp;in what the copy that stays lacks</source>
        <translation>残るコピーにない情報を補う(&amp;I)</translation>
    </message>
</context>
<context>
    <name>songsweep::DetailsDialog</name>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>コピー(&amp;P)</translation>
    </message>
</context>
<context>
    <name>songsweep::MainWindow</name>
    <message>
        <source>Songsweep</source>
        <translation>Songsweep</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Find duplicates</source>
        <translation>重複を探す</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>マーク</translation>
    </message>
    <message>
        <source>Mark copies by a rule</source>
        <translation>規則でコピーをマークする</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Delete the marked tracks</source>
        <translation>マークしたトラックを削除する</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルタ</translation>
    </message>
    <message>
        <source>Duplicate tracks</source>
        <translation>重複したトラック</translation>
    </message>
    <message>
        <source>Search progress</source>
        <translation>検索の進み具合</translation>
    </message>
    <message>
        <source>Cancel search</source>
        <translation>検索を中止</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>最近使った項目を開く(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Mark</source>
        <translation>マーク(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Track</source>
        <translation>トラック(&amp;T)</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation>並べ替え(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>ウインドウ(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Open library...</source>
        <translation>ライブラリを開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Choose &amp;music folder...</source>
        <translation>音楽フォルダを選択(&amp;M)...</translation>
    </message>
    <message>
        <source>&amp;Search...</source>
        <translation>検索(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Delete marked tracks...</source>
        <translation>マークしたトラックを削除(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Restore deleted tracks...</source>
        <translation>削除したトラックを復元(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Close window</source>
        <translation>ウインドウを閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>取り消す(&amp;Z)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;Y)</translation>
    </message>
    <message>
        <source>Mark by &amp;rule...</source>
        <translation>規則でマーク(&amp;R)...</translation>
    </message>
    <message>
        <source>Compare &amp;sound…</source>
        <translation>音を比べる(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Mark selected</source>
        <translation>選択項目をマーク(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Unmark selected</source>
        <translation>選択項目のマークを外す(&amp;U)</translation>
    </message>
    <message>
        <source>Mark &amp;all</source>
        <translation>すべてマーク(&amp;A)</translation>
    </message>
    <message>
        <source>U&amp;nmark all</source>
        <translation>すべてのマークを外す(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>再生(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Show in file manager</source>
        <translation>ファイルマネージャで表示(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>フィルタ(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>詳細(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Copy rows</source>
        <translation>行をコピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Songsweep</source>
        <translation>Songsweep(&amp;S)</translation>
    </message>
    <message>
        <source>Songsweep &amp;help</source>
        <translation>Songsweep ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>書き出す(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;User guide</source>
        <translation>ユーザガイド(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>キーボード(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>Web サイト(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Contact</source>
        <translation>お問い合わせ(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;About Songsweep</source>
        <translation>Songsweep について(&amp;A)</translation>
    </message>
    <message>
        <source>%L1 copies of %2</source>
        <translation>%2、コピー %L1 個</translation>
    </message>
    <message>
        <source>%L1 marked, %2</source>
        <translation>マーク %L1 個、%2</translation>
    </message>
    <message>
        <source>%L1 of %L2 shown</source>
        <translation>%L2 個のうち %L1 個を表示</translation>
    </message>
    <message>
        <source>%1 “%2”</source>
        <translation>「%2」を%1</translation>
    </message>
    <message>
        <source>What is shown</source>
        <translation>表示する項目</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%2 の %1</translation>
    </message>
    <message>
        <source>%1, %2, saved %3</source>
        <translation>%1、%2、保存日時 %3</translation>
    </message>
    <message>
        <source>Looked in %1</source>
        <translation>探した場所: %1</translation>
    </message>
    <message>
        <source>Find the songs you have twice</source>
        <translation>重複した曲を見つけます</translation>
    </message>
    <message>
        <source>Nothing is deleted until you say so.</source>
        <translation>確認するまで何も削除されません。</translation>
    </message>
    <message>
        <source>No iTunes library was found</source>
        <translation>iTunes ライブラリが見つかりません</translation>
    </message>
    <message>
        <source>Open its XML file, or drop it here.</source>
        <translation>XML ファイルを開くか、ここにドロップしてください。</translation>
    </message>
    <message>
        <source>Reading the library...</source>
        <translation>ライブラリを読み込み中...</translation>
    </message>
    <message>
        <source>The library can&apos;t be read</source>
        <translation>ライブラリを読めません</translation>
    </message>
    <message>
        <source>Songsweep reads your iTunes library and shows its duplicates in groups.</source>
        <translation>Songsweep は iTunes ライブラリを読み込み、重複をグループで表示します。</translation>
    </message>
    <message>
        <source>Choose m&amp;usic folder...</source>
        <translation>音楽フォルダを選択(&amp;U)...</translation>
    </message>
    <message>
        <source>Open library</source>
        <translation>ライブラリを開く</translation>
    </message>
    <message>
        <source>iTunes libraries (*.xml)</source>
        <translation>iTunes ライブラリ (*.xml)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Choose music folder</source>
        <translation>音楽フォルダを選択</translation>
    </message>
    <message>
        <source>Choose the music folder</source>
        <translation>音楽フォルダを選択</translation>
    </message>
    <message>
        <source>Export results</source>
        <translation>結果を書き出す</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>表 (*.csv)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Web ページ (*.html)</translation>
    </message>
    <message>
        <source>Duplicates.csv</source>
        <translation>重複.csv</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Show backup</source>
        <translation>バックアップを表示</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完了させる</translation>
    </message>
    <message>
        <source>Restore...</source>
        <translation>復元...</translation>
    </message>
    <message>
        <source>Choose the music folder...</source>
        <translation>音楽フォルダを選択...</translation>
    </message>
    <message>
        <source>Search with fewer fields...</source>
        <translation>項目を減らして検索...</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Finder で表示</translation>
    </message>
    <message>
        <source>Without iTunes Songsweep edits the library file; iTunes elsewhere keeps a database of its own.</source>
        <translation>iTunes がない場合、Songsweep はライブラリファイルを編集します。ほかのコンピュータの iTunes は独自のデータベースを持っています。</translation>
    </message>
    <message>
        <source>Show in Trash</source>
        <translation>ゴミ箱で表示</translation>
    </message>
</context>
<context>
    <name>songsweep::MarkDialog</name>
    <message>
        <source>Mark copies</source>
        <translation>コピーをマーク</translation>
    </message>
    <message>
        <source>Keep in each group</source>
        <translation>各グループで残すもの</translation>
    </message>
    <message>
        <source>&amp;Bit rate</source>
        <translation>ビットレート(&amp;B)</translation>
    </message>
    <message>
        <source>Keep by bit rate</source>
        <translation>ビットレートで残す</translation>
    </message>
    <message>
        <source>Bit rate to keep</source>
        <translation>残すビットレート</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>時間(&amp;T)</translation>
    </message>
    <message>
        <source>Keep by time</source>
        <translation>時間で残す</translation>
    </message>
    <message>
        <source>Time to keep</source>
        <translation>残す時間</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>サイズ(&amp;S)</translation>
    </message>
    <message>
        <source>Keep by size</source>
        <translation>サイズで残す</translation>
    </message>
    <message>
        <source>Size to keep</source>
        <translation>残すサイズ</translation>
    </message>
    <message>
        <source>&amp;Rating</source>
        <translation>評価(&amp;R)</translation>
    </message>
    <message>
        <source>Keep by rating</source>
        <translation>評価で残す</translation>
    </message>
    <message>
        <source>Rating to keep</source>
        <translation>残す評価</translation>
    </message>
    <message>
        <source>&amp;Play count</source>
        <translation>再生回数(&amp;P)</translation>
    </message>
    <message>
        <source>Keep by play count</source>
        <translation>再生回数で残す</translation>
    </message>
    <message>
        <source>Play count to keep</source>
        <translation>残す再生回数</translation>
    </message>
    <message>
        <source>Date &amp;added</source>
        <translation>追加日(&amp;A)</translation>
    </message>
    <message>
        <source>Keep by date added</source>
        <translation>追加日で残す</translation>
    </message>
    <message>
        <source>Date added to keep</source>
        <translation>残す追加日</translation>
    </message>
    <message>
        <source>Art&amp;work</source>
        <translation>アートワーク(&amp;W)</translation>
    </message>
    <message>
        <source>Keep by artwork</source>
        <translation>アートワークで残す</translation>
    </message>
    <message>
        <source>Artwork to keep</source>
        <translation>残すアートワーク</translation>
    </message>
    <message>
        <source>Or mark the copies</source>
        <translation>またはマークするコピー</translation>
    </message>
    <message>
        <source>Of &amp;kind</source>
        <translation>種類(&amp;K)</translation>
    </message>
    <message>
        <source>Mark the copies of a kind</source>
        <translation>ある種類のコピーをマークする</translation>
    </message>
    <message>
        <source>Kind to mark</source>
        <translation>マークする種類</translation>
    </message>
    <message>
        <source>In &amp;folder</source>
        <translation>フォルダ(&amp;F)</translation>
    </message>
    <message>
        <source>Mark the copies in a folder</source>
        <translation>あるフォルダのコピーをマークする</translation>
    </message>
    <message>
        <source>Folder to mark</source>
        <translation>マークするフォルダ</translation>
    </message>
    <message>
        <source>C&amp;hoose...</source>
        <translation>選択(&amp;H)...</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>フォルダを選択</translation>
    </message>
    <message>
        <source>Mark &amp;every copy but one</source>
        <translation>1 つを残してすべてマークする(&amp;E)</translation>
    </message>
    <message>
        <source>One copy of each song stays, a working one if there is one.</source>
        <translation>各曲のコピーを 1 つ残します。再生できるものがあればそれを残します。</translation>
    </message>
    <message>
        <source>Equal tags can be different recordings.</source>
        <translation>タグが同じでも別の録音のことがあります。</translation>
    </message>
    <message>
        <source>Compare soun&amp;d…</source>
        <translation>音を比べる(&amp;D)…</translation>
    </message>
    <message>
        <source>No tracks to mark</source>
        <translation>マークするトラックはありません</translation>
    </message>
    <message>
        <source>No track matches.</source>
        <translation>当てはまるトラックはありません。</translation>
    </message>
    <message>
        <source>Marked %L1 of %L2</source>
        <translation>%L2 個のうち %L1 個をマークしました</translation>
    </message>
    <message>
        <source>Would mark %L1 of %L2</source>
        <translation>%L2 個のうち %L1 個をマークします</translation>
    </message>
    <message>
        <source>One copy of each recording stays, a working one if there is one.</source>
        <translation>各録音のコピーを 1 つ残します。再生できるものがあればそれを残します。</translation>
    </message>
    <message>
        <source>Copies that tie all stay. No recording loses every copy.</source>
        <translation>同等のコピーはすべて残ります。どの録音もコピーが残ります。</translation>
    </message>
    <message>
        <source>A song can lose every copy. Missing files are marked too.</source>
        <translation>すべてのコピーがなくなる曲もあります。ファイルのないものもマークします。</translation>
    </message>
    <message>
        <source>Copies that tie all stay. Missing files are marked too.</source>
        <translation>同等のコピーはすべて残ります。ファイルのないものもマークします。</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Mark</source>
        <translation>マーク(&amp;M)</translation>
    </message>
    <message>
        <source>Replaces all present marks</source>
        <translation>今のマークをすべて置き換えます</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>フォルダを選択</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Keep of each recording</source>
        <translation>各録音で残すもの</translation>
    </message>
    <message>
        <source>Recordings were told apart by their sound.</source>
        <translation>録音を音で区別しました。</translation>
    </message>
    <message>
        <source>No folder chosen</source>
        <translation>フォルダが選ばれていません</translation>
    </message>
</context>
<context>
    <name>songsweep::MessagePageView</name>
    <message>
        <source>Open %1</source>
        <translation>%1 を開く</translation>
    </message>
</context>
<context>
    <name>songsweep::NoticeBarView</name>
    <message>
        <source>Close message</source>
        <translation>メッセージを閉じる</translation>
    </message>
</context>
<context>
    <name>songsweep::ParametersDialog</name>
    <message>
        <source>Search for duplicates</source>
        <translation>重複を検索</translation>
    </message>
    <message>
        <source>Tracks are duplicates when they have the same</source>
        <translation>次の項目が同じトラックを重複とする</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>名前(&amp;N)</translation>
    </message>
    <message>
        <source>Same name</source>
        <translation>同じ名前</translation>
    </message>
    <message>
        <source>&amp;Artist</source>
        <translation>アーティスト(&amp;A)</translation>
    </message>
    <message>
        <source>Same artist</source>
        <translation>同じアーティスト</translation>
    </message>
    <message>
        <source>A&amp;lbum</source>
        <translation>アルバム(&amp;L)</translation>
    </message>
    <message>
        <source>Same album</source>
        <translation>同じアルバム</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>時間(&amp;T)</translation>
    </message>
    <message>
        <source>Same time</source>
        <translation>同じ時間</translation>
    </message>
    <message>
        <source>Allow small &amp;differences</source>
        <translation>小さな違いを許す(&amp;D)</translation>
    </message>
    <message>
        <source>Punctuation, accents, “(Remastered)”, a guest (“feat. …”), and two seconds do not count. Live recordings, remixes and other versions stay apart.</source>
        <translation>句読点、アクセント記号、「(Remastered)」、ゲスト (「feat. …」)、2 秒の差は無視します。ライブ録音、リミックスなどの別バージョンは区別します。</translation>
    </message>
    <message>
        <source>Search &amp;in</source>
        <translation>検索する場所(&amp;I)</translation>
    </message>
    <message>
        <source>Search in</source>
        <translation>検索する場所</translation>
    </message>
    <message>
        <source>Leave &amp;out tracks whose files are missing</source>
        <translation>ファイルがないトラックを除く(&amp;O)</translation>
    </message>
    <message>
        <source>All tracks will form one group.</source>
        <translation>すべてのトラックが 1 つのグループになります。</translation>
    </message>
    <message>
        <source>Reading the library...</source>
        <translation>ライブラリを読み込み中...</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>検索(&amp;S)</translation>
    </message>
</context>
<context>
    <name>songsweep::ProgressSheet</name>
    <message>
        <source>Songsweep</source>
        <translation>Songsweep</translation>
    </message>
    <message>
        <source>Deleting...</source>
        <translation>削除中...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進み具合</translation>
    </message>
    <message>
        <source>Cancel reading</source>
        <translation>読み込みを中止</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Cancel deletion</source>
        <translation>削除を中止</translation>
    </message>
    <message>
        <source>Cancel comparing</source>
        <translation>比較を中止</translation>
    </message>
</context>
<context>
    <name>songsweep::RestoreDialog</name>
    <message>
        <source>Restore deleted tracks</source>
        <translation>削除したトラックを復元</translation>
    </message>
    <message>
        <source>Which deletion is to be undone?</source>
        <translation>どの削除を取り消しますか?</translation>
    </message>
    <message>
        <source>Tracks come back to the library and their playlists, files to where they were.</source>
        <translation>トラックはライブラリとプレイリストに、ファイルは元の場所に戻ります。</translation>
    </message>
    <message>
        <source>Deletions</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>トラック</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>&amp;Leave out tracks whose files are lost</source>
        <translation>ファイルが失われたトラックを除く(&amp;L)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進み具合</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>復元(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>詳細(&amp;D)</translation>
    </message>
    <message>
        <source>Looking for deletions...</source>
        <translation>削除を探しています...</translation>
    </message>
    <message>
        <source>Looking what can come back...</source>
        <translation>戻せるものを調べています...</translation>
    </message>
    <message>
        <source>Restoring...</source>
        <translation>復元中...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>songsweep::SoundDialog</name>
    <message>
        <source>Compare sound</source>
        <translation>音を比べる</translation>
    </message>
    <message>
        <source>Equal tags can be different recordings. The first minute of each file tells which copies of a song are the same one.</source>
        <translation>タグが同じでも別の録音のことがあります。各ファイルの最初の 1 分で、どのコピーが同じ録音かがわかります。</translation>
    </message>
    <message>
        <source>&amp;All songs</source>
        <translation>すべての曲(&amp;A)</translation>
    </message>
    <message>
        <source>Selected &amp;songs</source>
        <translation>選択した曲(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Co&amp;mpare</source>
        <translation>比べる(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Selected songs</source>
        <translation>選択した曲(&amp;S)</translation>
    </message>
</context>
<context>
    <name>songsweep::WindowActions</name>
    <message>
        <source>Keyboard</source>
        <translation>キーボード</translation>
    </message>
    <message>
        <source>Restored tracks</source>
        <translation>復元したトラック</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
</context>
</TS>
